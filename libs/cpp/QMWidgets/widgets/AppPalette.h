#pragma once

#include <QPalette>

namespace QMWidgets {

// The program's colours where the style sheet leaves the platform's: the
// copper of the buttons for selections and links, and tool tips on the dark
// wood of the panels, so that nothing shows the platform's blue or yellow.
class AppPalette
{
public:
    // The base palette with the program's selection, link and tool tip colours.
    static QPalette tinted(const QPalette& base);
    // Sets them for the application and its tool tips.
    static void apply();
};

} // namespace QMWidgets
