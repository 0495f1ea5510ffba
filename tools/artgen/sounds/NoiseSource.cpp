#include "NoiseSource.h"

NoiseSource::NoiseSource(quint32 seed)
    : m_state(seed * 2654435761u + 12345u)
{
}

float NoiseSource::next()
{
    m_state = m_state * 1664525u + 1013904223u;
    return static_cast<float>(m_state >> 8) / 8388608.0f - 1.0f;
}
