#include "PulseSourceWatch.h"

#include "PulseConnection.h"

#include <pulse/pulseaudio.h>

namespace QMMultiMedia {

namespace {

// Lives until the server's last answer to one question: the watch itself
// may be gone by then.
struct Question
{
    std::shared_ptr<std::atomic<bool>> gone;
};

void answered(pa_context*, const pa_source_info*, int eol, void* data)
{
    auto* question = static_cast<Question*>(data);
    if (eol == 0)
        return;
    if (eol < 0)
        question->gone->store(true);
    delete question;
}

} // namespace

PulseSourceWatch::PulseSourceWatch(const QString& sourceName)
    : m_name(sourceName.toUtf8())
    , m_gone(std::make_shared<std::atomic<bool>>(false))
{
}

void PulseSourceWatch::ask()
{
    if (m_name.isEmpty())
        return;
    PulseConnection& connection = PulseConnection::instance();
    PulseConnection::Locker lock;
    if (connection.state() != PulseConnection::State::Ready)
        return;
    auto* question = new Question { m_gone };
    pa_operation* operation
        = pa_context_get_source_info_by_name(connection.context(), m_name.constData(), &answered, question);
    if (!operation) {
        delete question;
        return;
    }
    pa_operation_unref(operation);
}

bool PulseSourceWatch::isGone() const
{
    return m_gone->load();
}

} // namespace QMMultiMedia
