#pragma once

#include "BaseInput.h"
#include "Chunk.h"
#include "LTCDecoder.h"

#include "Common/AudioFloatBuffer.h"
#include "Common/EBUEnvelope.h"
#include "Common/EBUInfo.h"
#include "Common/FileInfo.h"
#include "Common/PeakInfoCache.h"
#include "Common/PeakVector.h"
#include "Common/RawBuffer.h"

#include "Handle.h"

#include <QList>
#include <QString>

#include <cstdio>
#include <vector>

namespace Audio {

// Everything of an audio file reader that does not depend on the container: the
// stream, the reads of bytes, samples and frames within the audio, the file's
// broadcast info and its peak envelope. Subclasses walk the chunks in open().
class FileInput : public BaseInput
{
public:
    FileInput();
    ~FileInput() override;

    // The inputs that exist now, in order of construction.
    static const QList<FileInput*>& filesInUse();
    static void setTempPath(const QString& path);
    static QString tempPath();

    short fmt() const override;
    // Reads a chunk header; swapSize reverses the size bytes (AIFF). Gives the bytes
    // read, or -1 without a file.
    virtual int readChunk(Chunk* chunk, int swapSize);
    virtual bool open(const char* path);
    // The peaks of the file: from its "levl" chunk, else from the ".bef" file in the
    // temporary folder, else computed from the audio and kept there.
    virtual void createPeakVector();
    // The peak of display column x of a channel at `zoom` samples a column; also kept
    // as the current peak minimum and maximum. Nothing (zeros) without peaks.
    virtual PeakInfo peakInfo(int x, int ch, float zoom);
    // Checks the path (extension unless ignored, a regular file of at least 40 bytes)
    // and opens it.
    virtual bool load(const char* path, bool ignoreExtension = false);

    // Bytes of audio; never what lies behind it.
    virtual int read(char* buffer, int bytes);
    virtual int read(MTools::Handle<RawBuffer> buffer);
    // Frames, as many as the buffer holds.
    virtual int read(MTools::Handle<AudioFloatBuffer> buffer);
    virtual int read(MTools::Handle<AudioFloatBuffer> buffer, unsigned long frames);
    // Samples over all channels.
    virtual int read(float* samples, int count);
    // Frames of one channel, or -1 for a channel the file does not have.
    virtual int readChannel(float* target, int frames, int channel);
    // To the start of the audio plus `bytes`.
    virtual int seek(int bytes);
    // The position relative to the start of the audio.
    virtual long tell();
    virtual void flush();
    virtual void rewind();
    // The absolute position in the file.
    virtual long long position();
    virtual void gotoFrame(const int& frame, const int& channels);
    virtual void gotoFrame(const int& frame);
    virtual int readFrames(const int& frame, float* target, const int& frames, const int& channels);
    virtual int readFrames(float* target, const int& frames, const int& channels);
    virtual bool saveEnvelope(const char* path, const EBUEnvelope::Format& format);
    // A ".bef" file: its header becomes the envelope and its peaks the peak vector.
    virtual bool loadEnvelope(const char* path);
    virtual bool saveEbuInfo(const char* path);
    virtual bool loadEbuInfo(const char* path);
    virtual MTools::Handle<EBUInfo> ebuInfo() const;
    virtual MTools::Handle<EBUEnvelope> ebuEnvelope() const;
    virtual FileInfo fileInfo() const;
    // The file name endings the reader takes, separated by blanks.
    virtual QString extentions() const;
    virtual MTools::Handle<PeakVector> peakVector() const;
    virtual FILE* filePointer() const;
    // Bytes of audio that the file really holds, however large its headers claim it to be.
    long long audioBytesInFile() const;
    virtual int close();
    // The timecode of an LTC track, through a decoder made on first use.
    virtual void createLTCData(const int& track);
    virtual const LTCData& getLTC(const int& audioFrame);
    virtual int getAudioFrameLTC(int h, int m, int s, int f);
    // "hh:mm:ss:ff", any separators.
    virtual int getAudioFrameLTC(const QString& timecode);
    virtual bool isLTCDataAvailable();
    virtual int getLTCTrack();
    virtual QString ltcTimeCode(const int& audioFrame, bool userBits);
    virtual float ltcFps();
    MTools::Handle<LTCDecoder> ltcDecoder();

    QString scene() const;
    QString take() const;

    // The ".bef" file of this file: the path with "/", ":" and "." made "_", in the
    // folder "Envelopes" of the temporary path.
    QString envelopeLocation() const;
    static QString tempFilePath();
    QString tempFilePathAndName() const;
    // Samples of a channel per column when the file fills `width` columns.
    float calculateZoom(int width) const;
    bool buildPeakVectorFromChunk(FILE* file, const long& position);
    // Minimum and maximum of each block of 256 frames and channel.
    void buildPeakVectorFromAudioData();
    float peakMinimum() const;
    float peakMaximum() const;

protected:
    // To the start of the audio plus `bytes`, without the limits of an int.
    int seekInAudio(long long bytes);
    // Forgets the stream of a file that failed to open.
    void dropFile();
    // Reads `bytes` bytes (at most what the file still holds) as text.
    QByteArray readText(long long bytes);

    FileInfo m_fileInfo;
    MTools::Handle<EBUInfo> m_ebuInfo;
    MTools::Handle<EBUEnvelope> m_envelope;
    MTools::Handle<LTCDecoder> m_ltcDecoder;
    FILE* m_file = nullptr;
    long long m_endOfAudio = 0;
    MTools::Handle<PeakVector> m_peakVector;
    float m_peakMinimum = 0.0f;
    float m_peakMaximum = 0.0f;
    PeakInfoCache m_peakCache { 6000 };
    int m_peakBlockSize = 256;
    long long m_lastPosition = 0;
    QString m_envelopeFolder = QStringLiteral("Envelopes");

private:
    // Minimum and maximum of `count` frames of a channel from `frame`, from 0 on both sides.
    PeakInfo computePeak(int frame, int count, int ch);

    std::vector<char> m_rawScratch;
    std::vector<int> m_intScratch;
    std::vector<float> m_floatScratch;
};

} // namespace Audio
