#include "Resonator.h"

#include <cmath>

Resonator::Resonator(double frequency, double q, int sampleRate)
{
    const double omega = 2.0 * 3.14159265358979323846 * frequency / sampleRate;
    const double alpha = std::sin(omega) / (2.0 * q);
    const double a0 = 1.0 + alpha;
    m_b0 = alpha / a0;
    m_a1 = -2.0 * std::cos(omega) / a0;
    m_a2 = (1.0 - alpha) / a0;
}

double Resonator::process(double x)
{
    const double y = m_b0 * (x - m_x2) - m_a1 * m_y1 - m_a2 * m_y2;
    m_x2 = m_x1;
    m_x1 = x;
    m_y2 = m_y1;
    m_y1 = y;
    return y;
}
