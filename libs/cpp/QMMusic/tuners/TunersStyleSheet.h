#pragma once

#include <QString>

namespace QMMusic {

// The tuners' own style rules: the black stage, the translucent bars, the
// glassy string and panel buttons and the pictured instrument buttons.
class TunersStyleSheet
{
public:
    static const QString& text();
};

} // namespace QMMusic
