#include "Common/AudioFloatBuffer.h"

#include <QtTest>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <vector>

using Audio::AudioFloatBuffer;
using MTools::Handle;

namespace {

// A buffer holding start, start + 1, ... in order.
Handle<AudioFloatBuffer> counting(int frameSize, int frames, float start = 1.0f)
{
    Handle<AudioFloatBuffer> buffer(new AudioFloatBuffer(frameSize, frames));
    for (int i = 0; i < buffer->size(); ++i)
        buffer->data()[i] = start + i;
    return buffer;
}

QVector<float> contents(const AudioFloatBuffer& buffer)
{
    return QVector<float>(buffer.data(), buffer.data() + buffer.size());
}

} // namespace

class tst_AudioFloatBuffer : public QObject
{
    Q_OBJECT

private slots:
    void edit_data();
    void edit();
    void copy_data();
    void copy();
    void convertFloatTo32_data();
    void convertFloatTo32();
};

void tst_AudioFloatBuffer::edit_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<int>("argument");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("stereo grows, new frames silent")
        << 2 << 2 << "resize" << 4 << QVector<float> { 1, 2, 3, 4, 0, 0, 0, 0 };
    QTest::newRow("stereo shrinks, keeps the start") << 2 << 3 << "resize" << 1 << QVector<float> { 1, 2 };
    QTest::newRow("same length keeps everything") << 2 << 3 << "resize" << 3 << QVector<float> { 1, 2, 3, 4, 5, 6 };
    QTest::newRow("resize to negative frames") << 2 << 2 << "resize" << -1 << QVector<float> {};
    QTest::newRow("no channels stays empty") << 0 << 4 << "resize" << 2 << QVector<float> {};
    QTest::newRow("reverse stereo") << 2 << 4 << "reverse" << 0 << QVector<float> { 7, 8, 5, 6, 3, 4, 1, 2 };
    QTest::newRow("reverse three channels") << 3 << 2 << "reverse" << 0 << QVector<float> { 4, 5, 6, 1, 2, 3 };
    QTest::newRow("reverse mono, odd frames") << 1 << 3 << "reverse" << 0 << QVector<float> { 3, 2, 1 };
    QTest::newRow("reverse empty") << 2 << 0 << "reverse" << 0 << QVector<float> {};
    QTest::newRow("move zero") << 2 << 4 << "move" << 0 << QVector<float> { 1, 2, 3, 4, 5, 6, 7, 8 };
    QTest::newRow("move one towards the start") << 2 << 4 << "move" << 1 << QVector<float> { 3, 4, 5, 6, 7, 8, 0, 0 };
    QTest::newRow("move whole length forward clears") << 2 << 4 << "move" << 4 << QVector<float>(8, 0.0f);
    QTest::newRow("move one towards the end") << 2 << 4 << "move" << -1 << QVector<float> { 0, 0, 1, 2, 3, 4, 5, 6 };
    QTest::newRow("move whole length back clears") << 2 << 4 << "move" << -4 << QVector<float>(8, 0.0f);
    QTest::newRow("move most negative clears") << 2 << 4 << "move" << INT_MIN << QVector<float>(8, 0.0f);
}

void tst_AudioFloatBuffer::edit()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);
    QFETCH(QString, edit);
    QFETCH(int, argument);
    QFETCH(QVector<float>, expected);

    counting(frameSize, qMax(frames, argument), 9.0f); // leaves non-zero samples in freed memory
    Handle<AudioFloatBuffer> buffer = counting(frameSize, frames);
    if (edit == QLatin1String("resize"))
        buffer->resize(argument);
    else if (edit == QLatin1String("reverse"))
        buffer->reverse();
    else
        buffer->move(argument);
    QCOMPARE(buffer->data() == nullptr, expected.isEmpty());
    QCOMPARE(contents(*buffer), expected);
}

void tst_AudioFloatBuffer::copy_data()
{
    QTest::addColumn<int>("srcChannels");
    QTest::addColumn<int>("dstChannels");
    QTest::addColumn<int>("srcFrame");
    QTest::addColumn<int>("dstFrame");
    QTest::addColumn<int>("frames");
    QTest::addColumn<QVector<float>>("expected");

    // The source counts from 1; the target is 3 frames filled with 100, 101, ...
    QTest::newRow("stereo to stereo, into the end") << 2 << 2 << 0 << 1 << 2 << QVector<float> { 100, 101, 1, 2, 3, 4 };
    QTest::newRow("stereo to mono skips the right channel") << 2 << 1 << 1 << 0 << 3 << QVector<float> { 3, 5, 7 };
    QTest::newRow("mono to stereo zeroes the right channel")
        << 1 << 2 << 0 << 1 << 2 << QVector<float> { 100, 101, 1, 0, 2, 0 };
    QTest::newRow("three channels to two") << 3 << 2 << 0 << 0 << 2 << QVector<float> { 1, 2, 4, 5, 104, 105 };
    QTest::newRow("two channels to three")
        << 2 << 3 << 2 << 2 << 1 << QVector<float> { 100, 101, 102, 103, 104, 105, 5, 6, 0 };
    QTest::newRow("within one buffer, overlapping")
        << 2 << 0 << 0 << 1 << 3 << QVector<float> { 1, 2, 1, 2, 3, 4, 5, 6 };
}

void tst_AudioFloatBuffer::copy()
{
    QFETCH(int, srcChannels);
    QFETCH(int, dstChannels);
    QFETCH(int, srcFrame);
    QFETCH(int, dstFrame);
    QFETCH(int, frames);
    QFETCH(QVector<float>, expected);

    const Handle<AudioFloatBuffer> source = counting(srcChannels, 4);
    Handle<AudioFloatBuffer> target = dstChannels ? counting(dstChannels, 3, 100.0f) : source;
    target->copy(source, srcFrame, dstFrame, frames);
    QCOMPARE(contents(*target), expected);
    if (dstChannels)
        QCOMPARE(contents(*source), contents(*counting(srcChannels, 4)));
}

void tst_AudioFloatBuffer::convertFloatTo32_data()
{
    QTest::addColumn<int>("srcChannels");
    QTest::addColumn<int>("dstChannels");
    QTest::addColumn<QVector<float>>("input");
    QTest::addColumn<QVector<int>>("expected");

    const int top = 0x7fff0000;
    const int bottom = static_cast<int>(0x80010000u);
    const int minusHalf = static_cast<int>(0xc0000000u);
    QTest::newRow("mono clamps and sign boundary")
        << 1 << 1 << QVector<float> { 1.0f, -2.0f, 0.5f / 32768, -0.5f / 32768, 1.0f / 32768, -1.0f / 32768 }
        << QVector<int> { top, bottom, 0, 0, 0x10000, -0x10000 };
    QTest::newRow("stereo to mono skips the right channel")
        << 2 << 1 << QVector<float> { 0.5f, 0.25f, -0.5f, -0.25f } << QVector<int> { 0x40000000, minusHalf };
    QTest::newRow("mono to stereo zeroes the right channel")
        << 1 << 2 << QVector<float> { 0.5f, -1.0f } << QVector<int> { 0x40000000, 0, bottom, 0 };
    QTest::newRow("three channels to two") << 3 << 2 << QVector<float> { 0.5f, 1.0f, 0.25f, -0.5f, -1.0f, -0.25f }
                                           << QVector<int> { 0x40000000, top, minusHalf, bottom };
}

// Out of place and in place, and back to floats.
void tst_AudioFloatBuffer::convertFloatTo32()
{
    QFETCH(int, srcChannels);
    QFETCH(int, dstChannels);
    QFETCH(QVector<float>, input);
    QFETCH(QVector<int>, expected);

    const int frames = input.size() / srcChannels;
    QVector<int> separate(expected.size(), 3);
    AudioFloatBuffer::convertFloatTo32(input.constData(), separate.data(), frames, srcChannels, dstChannels);
    QCOMPARE(separate, expected);

    std::vector<std::uint32_t> shared(std::max(input.size(), expected.size()));
    std::memcpy(shared.data(), input.constData(), sizeof(float) * input.size());
    int* result = reinterpret_cast<int*>(shared.data());
    AudioFloatBuffer::convertFloatTo32(
        reinterpret_cast<float*>(shared.data()), result, frames, srcChannels, dstChannels);
    QCOMPARE(QVector<int>(result, result + expected.size()), expected);

    // Back to floats: the low 16 bits are dropped, missing channels are silent.
    separate[0] |= 0xffff;
    const Handle<AudioFloatBuffer> back
        = AudioFloatBuffer::convert32ToFloat(separate.constData(), frames, dstChannels, 1);
    QVERIFY(qAbs(back->data()[0] - input[0]) <= 1.0f / 32768);
    QCOMPARE(AudioFloatBuffer::convert32ToFloat(separate.constData(), frames, dstChannels, 3)->data()[2], 0.0f);
}

QTEST_GUILESS_MAIN(tst_AudioFloatBuffer)
#include "tst_AudioFloatBuffer.moc"
