// Throughput of the sample conversions on ten million samples.
#include "Common/Util.h"

#include <QtTest>

#include <vector>

using Audio::Util;

class bench_AudioConversion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void conversion_data();
    void conversion();

private:
    static const int samples = 10 * 1000 * 1000;
    std::vector<float> m_floats;
    std::vector<int> m_ints16;
    std::vector<int> m_ints24;
    std::vector<char> m_raw16;
    std::vector<char> m_raw24;
};

void bench_AudioConversion::initTestCase()
{
    // A sweep across the whole range and a little beyond, so that the clamps take part.
    m_floats.resize(samples);
    for (int i = 0; i < samples; ++i)
        m_floats[i] = -1.1f + 2.2f * static_cast<float>(i % 10007) / 10007.0f;
    m_ints16.resize(samples);
    m_ints24.resize(samples);
    Util::convertFloatTo16(m_floats.data(), m_ints16.data(), samples);
    Util::convertFloatTo24(m_floats.data(), m_ints24.data(), samples);
    m_raw16.resize(2 * static_cast<size_t>(samples));
    m_raw24.resize(3 * static_cast<size_t>(samples));
    Util::convert16UToRaw(m_ints16.data(), m_raw16.data(), 2 * samples, true);
    Util::convert24UToRaw(m_ints24.data(), m_raw24.data(), 3 * samples);
}

void bench_AudioConversion::conversion_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("float to 16") << 0;
    QTest::newRow("16 to float") << 1;
    QTest::newRow("float to 24") << 2;
    QTest::newRow("24 to float") << 3;
    QTest::newRow("float to 16, raw little endian") << 4;
    QTest::newRow("raw little endian 16 to float") << 5;
    QTest::newRow("float to 24, raw") << 6;
    QTest::newRow("raw 24 to float") << 7;
}

void bench_AudioConversion::conversion()
{
    QFETCH(int, kind);
    std::vector<int> ints(samples);
    std::vector<float> floats(samples);
    std::vector<char> raw(3 * static_cast<size_t>(samples));

    QBENCHMARK
    {
        switch (kind) {
        case 0:
            Util::convertFloatTo16(m_floats.data(), ints.data(), samples);
            break;
        case 1:
            Util::convert16ToFloat(m_ints16.data(), floats.data(), samples);
            break;
        case 2:
            Util::convertFloatTo24(m_floats.data(), ints.data(), samples);
            break;
        case 3:
            Util::convert24ToFloat(m_ints24.data(), floats.data(), samples);
            break;
        case 4:
            Util::convertFloatTo16(m_floats.data(), ints.data(), samples);
            Util::convert16UToRaw(ints.data(), raw.data(), 2 * samples, true);
            break;
        case 5:
            Util::convertRawTo16U(m_raw16.data(), ints.data(), samples, true);
            Util::convert16ToFloat(ints.data(), floats.data(), samples);
            break;
        case 6:
            Util::convertFloatTo24(m_floats.data(), ints.data(), samples);
            Util::convert24UToRaw(ints.data(), raw.data(), 3 * samples);
            break;
        default:
            Util::convertRawTo24U(m_raw24.data(), ints.data(), samples, false);
            Util::convert24ToFloat(ints.data(), floats.data(), samples);
            break;
        }
    }
    // The results must be right, or the figures mean nothing.
    if (kind == 1 || kind == 5)
        QCOMPARE(floats[samples / 2 + 17] * 32768.0f, static_cast<float>(m_ints16[samples / 2 + 17]));
    if (kind == 0)
        QCOMPARE(ints[samples - 1], m_ints16[samples - 1]);
}

QTEST_GUILESS_MAIN(bench_AudioConversion)
#include "bench_AudioConversion.moc"
