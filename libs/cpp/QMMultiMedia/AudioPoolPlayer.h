#pragma once

#include <QObject>

namespace QMMultiMedia {

class AudioPlayersPool;

// The single front door through which every sample of the program sounds.
class AudioPoolPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioPoolPlayer)

public:
    // Made on first use, never destroyed.
    static AudioPoolPlayer* instance();

    void play(const QString& path);
    // Percent for the samples played from now on; sounding ones keep theirs.
    void setVolume(int volume);

    AudioPlayersPool* pool() const;

private:
    AudioPoolPlayer();

    AudioPlayersPool* m_pool = nullptr;

    static AudioPoolPlayer* m_uniqueInstance;
};

} // namespace QMMultiMedia
