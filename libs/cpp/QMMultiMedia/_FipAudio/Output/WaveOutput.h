#pragma once

#include "FileOutput.h"

namespace Audio {

// Writer of wave and broadcast wave files of 8, 16 and 24-bit PCM. The header is written
// at construction ("RIFF", "WAVE", "bext", "LIST"/"INFO"/"ICMT", "fmt ", "data"), the
// audio as it comes, the peak envelope "levl" behind it at close(), which also patches
// in the sizes.
class WaveOutput : public FileOutput
{
public:
    // Without info but with broadcastWave set, the info of a new recording is made.
    WaveOutput(const char* path, const Settings& settings, const QString& comment = QString(),
        MTools::Handle<EBUInfo> info = MTools::Handle<EBUInfo>(), bool broadcastWave = false);
    ~WaveOutput() override;

    // Bytes as they are to lie in the file; 0 on a failed write.
    int write(char* data, int bytes) override;
    // Samples over all channels, converted to the file's format. The answer is always
    // 0; whether the bytes reached the file is told by the byte write.
    int write(float* samples, int count) override;
    using BaseOutput::write;

    void setEnvelopeFormat(EBUEnvelope::Format format);
    virtual MTools::Handle<EBUInfo> ebuInfo() const;
    virtual bool create(const char* path);
    // Pads the audio, patches the sizes and closes the file.
    virtual bool close();
    virtual int version() const;
    // Seconds of audio written so far.
    virtual double duration() const;
    // The start of the recording on the time line, as text at the given rate.
    virtual QString timecode(int fps) const;
    // The start of the recording in samples since midnight; 0 without broadcast info.
    virtual long long start() const;

private:
    void dropFile();

    EBUEnvelope::Format m_envelopeFormat = EBUEnvelope::UnsignedShort;
};

} // namespace Audio
