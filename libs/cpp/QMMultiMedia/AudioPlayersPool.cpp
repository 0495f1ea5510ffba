#include "AudioPlayersPool.h"

#include "NativeAudioPlayer.h"

namespace QMMultiMedia {

AudioPlayersPool::AudioPlayersPool(int maximumPlayers, QObject* parent)
    : QObject(parent)
    , m_maximumPlayers(maximumPlayers)
{
}

AudioPlayersPool::~AudioPlayersPool()
{
    qDeleteAll(m_players);
}

void AudioPlayersPool::setVolume(int percent)
{
    m_volume = percent;
}

void AudioPlayersPool::play(const QString& path)
{
    if (m_maximumPlayers < 1) {
        NativeAudioPlayer* player = makePlayer();
        player->play(path);
        connect(player, &NativeAudioPlayer::finished, this, &AudioPlayersPool::slotPlayerFinished);
        return;
    }
    if (NativeAudioPlayer* player = findFreePlayer())
        player->play(path);
}

NativeAudioPlayer* AudioPlayersPool::findFreePlayer()
{
    if (m_players.size() < m_maximumPlayers)
        return makePlayer();
    NativeAudioPlayer* idle = nullptr;
    for (NativeAudioPlayer* player : qAsConst(m_players)) {
        if (!player->isPlaying())
            idle = player;
    }
    return idle;
}

QList<NativeAudioPlayer*> AudioPlayersPool::players() const
{
    return m_players;
}

void AudioPlayersPool::slotPlayerFinished()
{
    auto* player = qobject_cast<NativeAudioPlayer*>(sender());
    if (!player)
        return;
    const int index = m_players.indexOf(player);
    if (index < 0)
        return;
    m_players.removeAt(index);
    player->deleteLater();
}

NativeAudioPlayer* AudioPlayersPool::makePlayer()
{
    auto* player = new NativeAudioPlayer;
    player->setVolume(m_volume);
    m_players.append(player);
    return player;
}

} // namespace QMMultiMedia
