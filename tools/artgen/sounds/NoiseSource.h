#pragma once

#include <QtGlobal>

// Deterministic noise for the synthesised samples, so that every build writes
// the same files: a linear congruential generator.
class NoiseSource
{
public:
    explicit NoiseSource(quint32 seed);

    // The next value, evenly spread over [-1, 1).
    float next();

private:
    quint32 m_state = 1;
};
