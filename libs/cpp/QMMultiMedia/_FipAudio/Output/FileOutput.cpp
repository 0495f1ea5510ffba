#include "FileOutput.h"

namespace Audio {

FileOutput::FileOutput(const Settings& settings, const QString& comment, MTools::Handle<EBUInfo> info)
    : BaseOutput(settings)
    , m_ebuInfo(info)
{
    m_fileInfo.setComment(comment);
}

FileOutput::~FileOutput() = default;

FileInfo FileOutput::fileInfo() const
{
    return m_fileInfo;
}

FILE* FileOutput::filePointer() const
{
    return m_file;
}

} // namespace Audio
