#include "BaseOutput.h"

#include <QtGlobal>

namespace Audio {

BaseOutput::BaseOutput(const Settings& settings)
    : AudioIO(settings)
{
}

int BaseOutput::write(MTools::Handle<AudioFloatBuffer> buffer, int frames)
{
    Q_ASSERT(!((frames * buffer->frameSize()) > (buffer->size())));
    return write(buffer->data(), frames * buffer->frameSize());
}

int BaseOutput::write(MTools::Handle<RawBuffer> buffer, int bytes)
{
    Q_ASSERT(!(bytes > buffer->size()));
    return write(buffer->data(), bytes);
}

void BaseOutput::setFragmentSize(int fragmentSize)
{
    m_fragmentSize = fragmentSize;
}

int BaseOutput::fragmentSize() const
{
    return m_fragmentSize;
}

bool BaseOutput::test()
{
    return false;
}

} // namespace Audio
