#pragma once

#include "FileInput.h"

namespace Audio {

// A reader of any supported file: it tries the wave reader, then the AIFF reader, and
// hands every operation to the one that took the file. Without one, operations
// answer 0, null or nothing.
class GeneralFileInput : public FileInput
{
public:
    enum FileFormat
    {
        Unknown,
        Wave,
        Aiff,
    };

    bool load(const char* path, bool ignoreExtension = false) override;
    // Does nothing: the readers open the file.
    bool open(const char* path) override;
    FileFormat fileFormat() const;
    // "WAVE", "BWF" (wave with broadcast info), "AIFF" or "UNKNOWN".
    QString formatString() const;

    QString name() const override;
    short fmt() const override;
    int readChunk(Chunk* chunk, int swapSize) override;
    void createPeakVector() override;
    PeakInfo peakInfo(int x, int ch, float zoom) override;
    bool saveEnvelope(const char* path, const EBUEnvelope::Format& format) override;
    bool loadEnvelope(const char* path) override;
    MTools::Handle<EBUEnvelope> ebuEnvelope() const override;
    MTools::Handle<PeakVector> peakVector() const override;
    int read(char* buffer, int bytes) override;
    int read(MTools::Handle<RawBuffer> buffer) override;
    int read(MTools::Handle<AudioFloatBuffer> buffer) override;
    int read(MTools::Handle<AudioFloatBuffer> buffer, unsigned long frames) override;
    int read(float* samples, int count) override;
    int readChannel(float* target, int frames, int channel) override;
    int seek(int bytes) override;
    long tell() override;
    void flush() override;
    void rewind() override;
    long long position() override;
    void gotoFrame(const int& frame, const int& channels) override;
    void gotoFrame(const int& frame) override;
    int readFrames(const int& frame, float* target, const int& frames, const int& channels) override;
    int readFrames(float* target, const int& frames, const int& channels) override;
    bool saveEbuInfo(const char* path) override;
    bool loadEbuInfo(const char* path) override;
    MTools::Handle<EBUInfo> ebuInfo() const override;
    FileInfo fileInfo() const override;
    QString extentions() const override;
    FILE* filePointer() const override;
    int close() override;
    void createLTCData(const int& track) override;
    const LTCData& getLTC(const int& audioFrame) override;
    int getAudioFrameLTC(int h, int m, int s, int f) override;
    int getAudioFrameLTC(const QString& timecode) override;
    bool isLTCDataAvailable() override;
    int getLTCTrack() override;
    QString ltcTimeCode(const int& audioFrame, bool userBits) override;
    float ltcFps() override;

private:
    MTools::Handle<FileInput> m_input;
};

} // namespace Audio
