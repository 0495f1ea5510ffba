#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <memory>

namespace QMMultiMedia {

// Tells whether a source of the sound server still exists. The server moves
// the streams of a source that goes away to another one, so that a recorder
// would quietly go on recording something else: this asks the server by
// name instead, in the background, and never waits for its answer.
class PulseSourceWatch
{
public:
    explicit PulseSourceWatch(const QString& sourceName);

    // Sends the question; its answer arrives on the server connection's thread.
    void ask();
    // True once the server has answered that no source has this name.
    bool isGone() const;

private:
    QByteArray m_name;
    std::shared_ptr<std::atomic<bool>> m_gone;
};

} // namespace QMMultiMedia
