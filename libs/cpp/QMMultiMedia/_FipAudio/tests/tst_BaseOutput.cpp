#include "Common/FileInfo.h"
#include "Output/BaseOutput.h"

#include <QtTest>

#include <cstring>

using Audio::AudioFloatBuffer;
using Audio::BaseOutput;
using Audio::FileInfo;
using Audio::RawBuffer;
using MTools::Handle;

namespace {

// Remembers the samples that reached the pure write.
class RecordingOutput : public BaseOutput
{
public:
    int write(char*, int bytes) override { return bytes; }
    int write(float* samples, int count) override
    {
        seen = QVector<float>(samples, samples + count);
        return count;
    }
    using BaseOutput::write;

    QVector<float> seen;
};

} // namespace

// The writers' base and the copies of buffers and file descriptions.
class tst_BaseOutput : public QObject
{
    Q_OBJECT

private slots:
    void bufferWriteSendsWholeFrames_data();
    void bufferWriteSendsWholeFrames();
    void copiesKeepTheirOwnData();
};

void tst_BaseOutput::bufferWriteSendsWholeFrames_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");

    QTest::newRow("stereo, two of three frames") << 2 << 2;
    QTest::newRow("mono, all") << 1 << 3;
    QTest::newRow("three channels, none") << 3 << 0;
}

void tst_BaseOutput::bufferWriteSendsWholeFrames()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);

    Handle<AudioFloatBuffer> buffer(new AudioFloatBuffer(frameSize, 3));
    for (int i = 0; i < buffer->size(); ++i)
        buffer->data()[i] = i * 0.1f;
    RecordingOutput output;
    QCOMPARE(output.write(buffer, frames), frames * frameSize);
    QCOMPARE(output.seen, QVector<float>(buffer->data(), buffer->data() + frames * frameSize));

    QString message;
    try {
        output.write(Handle<AudioFloatBuffer>(), 1);
    } catch (const MTools::Error& error) {
        message = error.message();
    }
    QCOMPARE(message, QStringLiteral("Null handle"));
}

void tst_BaseOutput::copiesKeepTheirOwnData()
{
    RawBuffer raw(3);
    std::memcpy(raw.data(), "abc", 3);
    RawBuffer copiedRaw(raw);
    RawBuffer assignedRaw(1);
    assignedRaw = raw;
    raw.data()[0] = 'z';
    QCOMPARE(QByteArray(copiedRaw.data(), copiedRaw.size()), QByteArray("abc"));
    QCOMPARE(QByteArray(assignedRaw.data(), assignedRaw.size()), QByteArray("abc"));

    // Assignment copies everything but the url, which a reader sets itself.
    FileInfo source;
    source.setComment(QStringLiteral("take 3"));
    source.setDataSize(2000);
    source.setCompression(1);
    FileInfo target;
    target.setUrl(QUrl::fromLocalFile(QStringLiteral("/tmp/b.wav")));
    target = source;
    QCOMPARE(target.url(), QUrl::fromLocalFile(QStringLiteral("/tmp/b.wav")));
    QCOMPARE(target.comment(), QStringLiteral("take 3"));
    QCOMPARE(target.dataSize(), 2000u);
    QCOMPARE(target.compression(), 1u);
}

QTEST_GUILESS_MAIN(tst_BaseOutput)
#include "tst_BaseOutput.moc"
