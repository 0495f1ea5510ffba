#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QVector>

// The program's icon for the desktop's menus and docks: a rosewood neck with
// frets, strings and one cyan mark on a copper-edged tile. One drawing in a
// 256-unit square gives both the SVG and the PNG of every size; below 32 px
// it keeps only three strings and three frets, with heavier lines, so that
// the neck still reads at 16 px.
class DesktopIconArt
{
public:
    // The sizes of the hicolor theme that get a PNG.
    static QVector<int> sizes();
    static QImage png(int size);
    static QByteArray svg();
    // Writes <dir>/hicolor/<n>x<n>/apps/<name>.png for every size and
    // <dir>/hicolor/scalable/apps/<name>.svg.
    static bool generate(const QString& dir, const QString& name);
};
