#include "Input/BaseInput.h"
#include "Output/BaseOutput.h"

#include <QtTest>

#include <cstring>

using Audio::AudioFloatBuffer;
using Audio::BaseInput;
using Audio::BaseOutput;
using Audio::RawBuffer;
using Audio::Settings;
using MTools::Handle;

namespace {

// Remembers what reached the two pure writes.
class RecordingOutput : public BaseOutput
{
public:
    int write(char* data, int bytes) override
    {
        bytesSeen = QByteArray(data, bytes);
        return bytes;
    }
    int write(float* samples, int count) override
    {
        samplesSeen = QVector<float>(samples, samples + count);
        return count;
    }
    using BaseOutput::write;

    QByteArray bytesSeen;
    QVector<float> samplesSeen;
};

} // namespace

class tst_BaseOutput : public QObject
{
    Q_OBJECT

private slots:
    void bufferWriteSendsWholeFrames_data();
    void bufferWriteSendsWholeFrames();
    void rawWriteSendsBytes();
    void nullBufferThrows();
    void rawBufferCopies();
    void inputReadsSettings();
    void nameAndDump();
};

void tst_BaseOutput::bufferWriteSendsWholeFrames_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("expectedCount");

    QTest::newRow("stereo, two of three frames") << 2 << 2 << 4;
    QTest::newRow("mono, all") << 1 << 3 << 3;
    QTest::newRow("three channels, none") << 3 << 0 << 0;
}

void tst_BaseOutput::bufferWriteSendsWholeFrames()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);
    QFETCH(int, expectedCount);

    Handle<AudioFloatBuffer> buffer(new AudioFloatBuffer(frameSize, 3));
    for (int i = 0; i < buffer->size(); ++i)
        buffer->data()[i] = i * 0.1f;
    RecordingOutput output;
    QCOMPARE(output.write(buffer, frames), expectedCount);
    QCOMPARE(output.samplesSeen, QVector<float>(buffer->data(), buffer->data() + expectedCount));
}

void tst_BaseOutput::rawWriteSendsBytes()
{
    Handle<RawBuffer> raw(new RawBuffer(4));
    std::memcpy(raw->data(), "RIFF", 4);
    RecordingOutput output;
    QCOMPARE(output.write(raw, 3), 3);
    QCOMPARE(output.bytesSeen, QByteArray("RIF"));
    output.setFragmentSize(4096);
    QCOMPARE(output.fragmentSize(), 4096);
    QVERIFY(!output.test());
}

void tst_BaseOutput::nullBufferThrows()
{
    RecordingOutput output;
    QString message;
    try {
        output.write(Handle<AudioFloatBuffer>(), 1);
    } catch (const MTools::Error& error) {
        message = error.message();
    }
    QCOMPARE(message, QStringLiteral("Null handle"));
}

void tst_BaseOutput::rawBufferCopies()
{
    RawBuffer original(3);
    QCOMPARE(QByteArray(original.data(), 3), QByteArray(3, '\0'));
    std::memcpy(original.data(), "abc", 3);
    RawBuffer copied(original);
    RawBuffer assigned(1);
    assigned = original;
    original.data()[0] = 'z';
    QCOMPARE(QByteArray(copied.data(), copied.size()), QByteArray("abc"));
    QCOMPARE(QByteArray(assigned.data(), assigned.size()), QByteArray("abc"));
    QCOMPARE(RawBuffer(0).data(), nullptr);
    QCOMPARE(RawBuffer(-4).size(), 0);
}

void tst_BaseOutput::inputReadsSettings()
{
    const BaseInput input(Settings(22050, 1, Settings::Unsigned8, 8));
    QCOMPARE(input.sampleRate(), 22050u);
    QCOMPARE(input.channels(), short(1));
    QCOMPARE(input.bitsPerSample(), short(8));
    QCOMPARE(input.fmt(), short(Settings::Unsigned8));
}

void tst_BaseOutput::nameAndDump()
{
    RecordingOutput output;
    QCOMPARE(output.name(), QStringLiteral("AudioIO"));
    QTest::ignoreMessage(QtDebugMsg, "AudioIO");
    output.dump();
}

QTEST_GUILESS_MAIN(tst_BaseOutput)
#include "tst_BaseOutput.moc"
