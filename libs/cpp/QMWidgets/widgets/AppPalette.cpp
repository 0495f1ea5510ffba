#include "AppPalette.h"

#include <QApplication>
#include <QToolTip>

namespace QMWidgets {

namespace {

const QColor kCopper(158, 86, 34);
const QColor kCopperLight(232, 150, 72);
const QColor kWood(43, 29, 20);
const QColor kIvory(243, 233, 210);

} // namespace

QPalette AppPalette::tinted(const QPalette& base)
{
    QPalette palette = base;
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive }) {
        palette.setColor(group, QPalette::Highlight, kCopper);
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    palette.setColor(QPalette::Link, kCopperLight);
    palette.setColor(QPalette::LinkVisited, kCopper);
    palette.setColor(QPalette::ToolTipBase, kWood);
    palette.setColor(QPalette::ToolTipText, kIvory);
    return palette;
}

void AppPalette::apply()
{
    const QPalette palette = tinted(QApplication::palette());
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace QMWidgets
