#pragma once

#include <QObject>

namespace QMMultiMedia {

// The single front door through which every sample of the program sounds.
class AudioPoolPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioPoolPlayer)

public:
    static AudioPoolPlayer* instance();

    void play(const QString& path);
    void setVolume(int volume);

private:
    AudioPoolPlayer();

    static AudioPoolPlayer* m_uniqueInstance;
};

} // namespace QMMultiMedia
