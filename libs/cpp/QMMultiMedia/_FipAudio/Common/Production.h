#pragma once

#include <QString>

namespace Audio {

// Read access to the production's defaults (ProductionParameters).
class Production
{
public:
    static float fps();
    static int sampleRate();
    static int bitsPerSample();
    static QString projectName();
};

} // namespace Audio
