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

// A buffer holding 1, 2, 3, ... in order.
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
    void construction_data();
    void construction();
    void resize_data();
    void resize();
    void resizeToSameLengthKeepsArray();
    void copy_data();
    void copy();
    void copyWithinOneBuffer();
    void copyFromNullHandleThrows();
    void reverse_data();
    void reverse();
    void move_data();
    void move();
    void copiesAreDeep();
    void convertFloatTo32_data();
    void convertFloatTo32();
    void convert32ToFloat_data();
    void convert32ToFloat();
};

void tst_AudioFloatBuffer::construction_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("size");

    QTest::newRow("stereo, four frames") << 2 << 4 << 8;
    QTest::newRow("mono, one frame") << 1 << 1 << 1;
    QTest::newRow("no channels") << 0 << 4 << 0;
    QTest::newRow("no frames") << 2 << 0 << 0;
    QTest::newRow("negative channels") << -1 << 3 << 0;
    QTest::newRow("negative frames") << 3 << -2 << 0;
}

void tst_AudioFloatBuffer::construction()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);
    QFETCH(int, size);

    const AudioFloatBuffer buffer(frameSize, frames);
    QCOMPARE(buffer.size(), size);
    QCOMPARE(buffer.data() == nullptr, size == 0);
    QCOMPARE(contents(buffer), QVector<float>(size, 0.0f));
}

void tst_AudioFloatBuffer::resize_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("newFrames");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("stereo grows, new frames silent")
        << 2 << 2 << 4 << QVector<float>{1, 2, 3, 4, 0, 0, 0, 0};
    QTest::newRow("stereo shrinks, keeps the start") << 2 << 3 << 1 << QVector<float>{1, 2};
    QTest::newRow("mono to nothing") << 1 << 3 << 0 << QVector<float>{};
    QTest::newRow("from nothing, silent") << 3 << 0 << 2 << QVector<float>(6, 0.0f);
    QTest::newRow("to negative frames") << 2 << 2 << -1 << QVector<float>{};
}

void tst_AudioFloatBuffer::resize()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);
    QFETCH(int, newFrames);
    QFETCH(QVector<float>, expected);

    Handle<AudioFloatBuffer> buffer = counting(frameSize, frames);
    buffer->resize(newFrames);
    QCOMPARE(buffer->frames(), newFrames);
    QCOMPARE(buffer->size(), expected.size());
    QCOMPARE(contents(*buffer), expected);
}

void tst_AudioFloatBuffer::resizeToSameLengthKeepsArray()
{
    Handle<AudioFloatBuffer> buffer = counting(2, 3);
    const float* before = buffer->data();
    buffer->resize(3);
    QCOMPARE(buffer->data(), before);
    QCOMPARE(contents(*buffer), (QVector<float>{1, 2, 3, 4, 5, 6}));
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
    QTest::newRow("mono to mono, middle")
        << 1 << 1 << 1 << 0 << 2 << QVector<float>{2, 3, 102};
    QTest::newRow("stereo to stereo, into the end")
        << 2 << 2 << 0 << 1 << 2 << QVector<float>{100, 101, 1, 2, 3, 4};
    QTest::newRow("stereo to mono skips the right channel")
        << 2 << 1 << 1 << 0 << 3 << QVector<float>{3, 5, 7};
    QTest::newRow("mono to stereo zeroes the right channel")
        << 1 << 2 << 0 << 1 << 2 << QVector<float>{100, 101, 1, 0, 2, 0};
    QTest::newRow("three channels to two")
        << 3 << 2 << 0 << 0 << 2 << QVector<float>{1, 2, 4, 5, 104, 105};
    QTest::newRow("two channels to three")
        << 2 << 3 << 2 << 2 << 1 << QVector<float>{100, 101, 102, 103, 104, 105, 5, 6, 0};
    QTest::newRow("no frames") << 2 << 2 << 0 << 0 << 0
                               << QVector<float>{100, 101, 102, 103, 104, 105};
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
    Handle<AudioFloatBuffer> target = counting(dstChannels, 3, 100.0f);
    target->copy(source, srcFrame, dstFrame, frames);
    QCOMPARE(contents(*target), expected);
    QCOMPARE(contents(*source), contents(*counting(srcChannels, 4)));
}

void tst_AudioFloatBuffer::copyWithinOneBuffer()
{
    Handle<AudioFloatBuffer> buffer = counting(2, 4);
    buffer->copy(buffer, 0, 1, 3);
    QCOMPARE(contents(*buffer), (QVector<float>{1, 2, 1, 2, 3, 4, 5, 6}));
}

void tst_AudioFloatBuffer::copyFromNullHandleThrows()
{
    AudioFloatBuffer target(2, 2);
    QString message;
    try {
        target.copy(Handle<AudioFloatBuffer>(), 0, 0, 1);
    } catch (const MTools::Error& error) {
        message = error.message();
    }
    QCOMPARE(message, QStringLiteral("Null handle"));
}

void tst_AudioFloatBuffer::reverse_data()
{
    QTest::addColumn<int>("frameSize");
    QTest::addColumn<int>("frames");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("stereo, odd frames") << 2 << 3 << QVector<float>{5, 6, 3, 4, 1, 2};
    QTest::newRow("stereo, even frames") << 2 << 4 << QVector<float>{7, 8, 5, 6, 3, 4, 1, 2};
    QTest::newRow("three channels, two frames") << 3 << 2 << QVector<float>{4, 5, 6, 1, 2, 3};
    QTest::newRow("mono") << 1 << 4 << QVector<float>{4, 3, 2, 1};
    QTest::newRow("one frame stays") << 2 << 1 << QVector<float>{1, 2};
    QTest::newRow("empty") << 2 << 0 << QVector<float>{};
}

void tst_AudioFloatBuffer::reverse()
{
    QFETCH(int, frameSize);
    QFETCH(int, frames);
    QFETCH(QVector<float>, expected);

    Handle<AudioFloatBuffer> buffer = counting(frameSize, frames);
    buffer->reverse();
    QCOMPARE(contents(*buffer), expected);
}

void tst_AudioFloatBuffer::move_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<QVector<float>>("expected");

    // Two channels, four frames: 1 .. 8.
    QTest::newRow("zero") << 0 << QVector<float>{1, 2, 3, 4, 5, 6, 7, 8};
    QTest::newRow("one towards the start") << 1 << QVector<float>{3, 4, 5, 6, 7, 8, 0, 0};
    QTest::newRow("three towards the start") << 3 << QVector<float>{7, 8, 0, 0, 0, 0, 0, 0};
    QTest::newRow("whole length forward clears") << 4 << QVector<float>(8, 0.0f);
    QTest::newRow("one towards the end") << -1 << QVector<float>{0, 0, 1, 2, 3, 4, 5, 6};
    QTest::newRow("three towards the end") << -3 << QVector<float>{0, 0, 0, 0, 0, 0, 1, 2};
    QTest::newRow("whole length back clears") << -4 << QVector<float>(8, 0.0f);
    QTest::newRow("far beyond clears") << 1000 << QVector<float>(8, 0.0f);
    QTest::newRow("most negative clears") << INT_MIN << QVector<float>(8, 0.0f);
}

void tst_AudioFloatBuffer::move()
{
    QFETCH(int, shift);
    QFETCH(QVector<float>, expected);

    Handle<AudioFloatBuffer> buffer = counting(2, 4);
    buffer->move(shift);
    QCOMPARE(contents(*buffer), expected);
}

void tst_AudioFloatBuffer::copiesAreDeep()
{
    Handle<AudioFloatBuffer> original = counting(2, 2);
    AudioFloatBuffer copied(*original);
    AudioFloatBuffer assigned(1, 1);
    assigned = *original;
    original->data()[0] = -9.0f;
    QCOMPARE(contents(copied), (QVector<float>{1, 2, 3, 4}));
    QCOMPARE(contents(assigned), (QVector<float>{1, 2, 3, 4}));
    QCOMPARE(assigned.frameSize(), 2);
    QCOMPARE(assigned.frames(), 2);
}

void tst_AudioFloatBuffer::convertFloatTo32_data()
{
    QTest::addColumn<int>("srcChannels");
    QTest::addColumn<int>("dstChannels");
    QTest::addColumn<QVector<float>>("input");
    QTest::addColumn<QVector<int>>("expected");

    const int top = 0x7fff0000;
    const int bottom = static_cast<int>(0x80010000u);
    QTest::newRow("mono extremes and clamps")
        << 1 << 1 << QVector<float>{1.0f, -1.0f, 2.0f, -2.0f}
        << QVector<int>{top, bottom, top, bottom};
    QTest::newRow("mono sign boundary")
        << 1 << 1 << QVector<float>{0.0f, 0.5f / 32768, -0.5f / 32768, 1.0f / 32768, -1.0f / 32768}
        << QVector<int>{0, 0, 0, 0x10000, -0x10000};
    QTest::newRow("stereo to mono skips the right channel")
        << 2 << 1 << QVector<float>{0.5f, 0.25f, -0.5f, -0.25f}
        << QVector<int>{0x40000000, static_cast<int>(0xc0000000u)};
    QTest::newRow("mono to stereo zeroes the right channel")
        << 1 << 2 << QVector<float>{0.5f, -1.0f} << QVector<int>{0x40000000, 0, bottom, 0};
    QTest::newRow("three channels to two")
        << 3 << 2 << QVector<float>{0.5f, 1.0f, 0.25f, -0.5f, -1.0f, -0.25f}
        << QVector<int>{0x40000000, top, static_cast<int>(0xc0000000u), bottom};
}

void tst_AudioFloatBuffer::convertFloatTo32()
{
    QFETCH(int, srcChannels);
    QFETCH(int, dstChannels);
    QFETCH(QVector<float>, input);
    QFETCH(QVector<int>, expected);

    const int frames = input.size() / srcChannels;
    QVector<int> separate(expected.size(), 3);
    AudioFloatBuffer::convertFloatTo32(input.constData(), separate.data(), frames, srcChannels,
                                       dstChannels);
    QCOMPARE(separate, expected);

    // One array for both, large enough for the wider of the two.
    std::vector<std::uint32_t> shared(std::max(input.size(), expected.size()));
    std::memcpy(shared.data(), input.constData(), sizeof(float) * input.size());
    AudioFloatBuffer::convertFloatTo32(reinterpret_cast<float*>(shared.data()),
                                       reinterpret_cast<int*>(shared.data()), frames, srcChannels,
                                       dstChannels);
    const int* result = reinterpret_cast<const int*>(shared.data());
    QCOMPARE(QVector<int>(result, result + expected.size()), expected);
}

void tst_AudioFloatBuffer::convert32ToFloat_data()
{
    QTest::addColumn<int>("srcChannels");
    QTest::addColumn<int>("dstChannels");
    QTest::addColumn<QVector<int>>("input");
    QTest::addColumn<QVector<float>>("expected");

    QTest::newRow("mono extremes") << 1 << 1
                                   << QVector<int>{0x7fff0000, static_cast<int>(0x80010000u),
                                                   static_cast<int>(0x80000000u), 0}
                                   << QVector<float>{32767.0f / 32768, -32767.0f / 32768, -1.0f, 0.0f};
    QTest::newRow("low half is dropped") << 1 << 1 << QVector<int>{0x0000ffff, 0x4000ffff}
                                         << QVector<float>{0.0f, 0.5f};
    QTest::newRow("stereo to mono") << 2 << 1 << QVector<int>{0x40000000, 0x20000000}
                                    << QVector<float>{0.5f};
    QTest::newRow("mono to stereo") << 1 << 2 << QVector<int>{0x40000000, static_cast<int>(0xc0000000u)}
                                    << QVector<float>{0.5f, 0.0f, -0.5f, 0.0f};
}

void tst_AudioFloatBuffer::convert32ToFloat()
{
    QFETCH(int, srcChannels);
    QFETCH(int, dstChannels);
    QFETCH(QVector<int>, input);
    QFETCH(QVector<float>, expected);

    const int frames = input.size() / srcChannels;
    const Handle<AudioFloatBuffer> result =
        AudioFloatBuffer::convert32ToFloat(input.constData(), frames, srcChannels, dstChannels);
    QCOMPARE(result->frameSize(), dstChannels);
    QCOMPARE(result->frames(), frames);
    QCOMPARE(contents(*result), expected);
}

QTEST_GUILESS_MAIN(tst_AudioFloatBuffer)
#include "tst_AudioFloatBuffer.moc"
