#pragma once

#include <QString>

namespace QMWidgets {

// The one application-wide style sheet. Widgets get their looks from their
// object names, so the names used here are an interface of every widget.
class AppStyleSheet
{
public:
    static QString text();
};

} // namespace QMWidgets
