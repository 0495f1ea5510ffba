#pragma once

// Two-pole resonator (a bandpass with a peak gain of one) for the modes of an
// instrument's body.
class Resonator
{
public:
    Resonator(double frequency, double q, int sampleRate);

    double process(double x);

private:
    double m_b0 = 0.0;
    double m_a1 = 0.0;
    double m_a2 = 0.0;
    double m_x1 = 0.0;
    double m_x2 = 0.0;
    double m_y1 = 0.0;
    double m_y2 = 0.0;
};
