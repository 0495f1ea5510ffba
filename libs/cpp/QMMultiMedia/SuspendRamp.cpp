#include "SuspendRamp.h"

#include <cmath>

namespace QMMultiMedia {

SuspendRamp::SuspendRamp(int channels, int rampFrames)
    : m_channels(qMax(1, channels))
    , m_rampFrames(qMax(0, rampFrames))
{
}

void SuspendRamp::push(const qint16* samples, qint64 frames, QVector<qint16>* out)
{
    const int start = m_held.size();
    m_held.resize(start + static_cast<int>(frames * m_channels));
    std::copy(samples, samples + frames * m_channels, m_held.begin() + start);
    if (m_fadeInDone >= 0) {
        int frame = m_fadeInDone;
        for (int i = start; i < m_held.size() && frame < m_rampFrames; i += m_channels, ++frame) {
            const double gain = static_cast<double>(frame) / m_rampFrames;
            for (int c = 0; c < m_channels; ++c)
                m_held[i + c] = static_cast<qint16>(std::lround(m_held.at(i + c) * gain));
        }
        m_fadeInDone = frame < m_rampFrames ? frame : -1;
    }
    const int ready = m_held.size() - m_rampFrames * m_channels;
    if (ready <= 0)
        return;
    out->append(m_held.mid(0, ready));
    m_held.remove(0, ready);
}

void SuspendRamp::fadeOut(QVector<qint16>* out)
{
    const int frames = m_held.size() / m_channels;
    for (int frame = 0; frame < frames; ++frame) {
        const double gain = static_cast<double>(frames - 1 - frame) / qMax(1, m_rampFrames);
        for (int c = 0; c < m_channels; ++c) {
            qint16& sample = m_held[frame * m_channels + c];
            sample = static_cast<qint16>(std::lround(sample * gain));
        }
    }
    flush(out);
    m_fadeInDone = m_rampFrames > 0 ? 0 : -1;
}

void SuspendRamp::flush(QVector<qint16>* out)
{
    out->append(m_held);
    m_held.clear();
}

} // namespace QMMultiMedia
