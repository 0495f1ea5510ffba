#pragma once

#include <QString>

namespace QMMusic {

// The chord pages' style rules. The text carries placeholders for sizes
// that depend on the screen: text() fills them for a desktop or a pocket
// screen and appends the sizes computed from the screen's smaller side.
class ChordsStyleSheet
{
public:
    static QString text(bool pocket, int smallestDimension);
};

} // namespace QMMusic
