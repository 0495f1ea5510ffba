#pragma once

#include <QVector>

namespace QMMultiMedia {

// Joins the two sides of a suspension in a recording without a click: the
// last frames before it fade out and the first after it fade in, each over
// a few milliseconds. To fade out what has already arrived, the newest
// ramp's worth of frames is held back until the next frames come or the
// recording pauses or ends. Nothing is dropped and nothing is added.
class SuspendRamp
{
public:
    SuspendRamp(int channels, int rampFrames);

    // Takes interleaved frames and appends to `out` those that are ready.
    void push(const qint16* samples, qint64 frames, QVector<qint16>* out);
    // The recording pauses: the held frames fade out into `out`, and the
    // next frames pushed will fade in.
    void fadeOut(QVector<qint16>* out);
    // The recording ends: the held frames go to `out` as they are.
    void flush(QVector<qint16>* out);

private:
    int m_channels = 1;
    int m_rampFrames = 0;
    QVector<qint16> m_held;
    // Frames of the fade-in still to shape; -1 when none is due.
    int m_fadeInDone = -1;
};

} // namespace QMMultiMedia
