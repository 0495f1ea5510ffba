#pragma once

#include <QList>
#include <QObject>

namespace QMMultiMedia {

class NativeAudioPlayer;

// Lets any number of samples sound at once: one player per sample, each
// deleted when its sound has ended (or, with a limit, a fixed set reused).
class AudioPlayersPool : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioPlayersPool)

public:
    // A maximum below 1 means no limit.
    explicit AudioPlayersPool(int maximumPlayers, QObject* parent = nullptr);
    ~AudioPlayersPool() override;

    // Percent for players made from now on.
    void setVolume(int percent);
    void play(const QString& path);
    NativeAudioPlayer* findFreePlayer();

    // The players that are alive, for inspection.
    QList<NativeAudioPlayer*> players() const;

public slots:
    void slotPlayerFinished();

private:
    NativeAudioPlayer* makePlayer();

    QList<NativeAudioPlayer*> m_players;
    int m_maximumPlayers = -1;
    int m_volume = 1;
};

} // namespace QMMultiMedia
