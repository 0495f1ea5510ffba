#pragma once

#include "BaseOutput.h"

#include "Common/EBUInfo.h"
#include "Common/FileInfo.h"

#include "Handle.h"

#include <QString>

#include <cstdio>
#include <vector>

namespace Audio {

// What every audio file writer keeps: the broadcast info, the file description with its
// sizes and offsets, and the stream.
class FileOutput : public BaseOutput
{
public:
    FileOutput(const Settings& settings, const QString& comment, MTools::Handle<EBUInfo> info);
    ~FileOutput() override;

    FileInfo fileInfo() const;
    FILE* filePointer() const;

protected:
    MTools::Handle<EBUInfo> m_ebuInfo;
    FileInfo m_fileInfo;
    FILE* m_file = nullptr;
    std::vector<int> m_intScratch;
    std::vector<char> m_rawScratch;
};

} // namespace Audio
