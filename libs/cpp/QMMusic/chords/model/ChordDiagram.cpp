#include "ChordDiagram.h"

namespace QMMusic {

ChordDiagram ChordDiagram::neck(const QSize& size, const QString& key, const QVector<int>& tab)
{
    const int W = size.width();
    const int H = size.height();
    const int n = tab.size();
    const bool high = key == QLatin1String("bass2");
    ChordDiagram d;
    d.headingPixelSize = H / 7 + 7;
    d.penWidth = H / 50;
    d.textPixelSize = H / 7 - 2;

    const int s = (H - 10) / (n + 1);
    for (int i = 1; i <= n; ++i)
        d.strings.append(QLine(30, 10 + i * s, W - 30, 10 + i * s));

    const int cells = high ? 8 : 6;
    const int c = (W - 60) / cells;
    // The banjo's fret lines stop above the short fifth string, its lowest row.
    const int m = key == QLatin1String("banjo") ? n - 1 : n;
    const int bottom = m * s + 10;
    const int numberOffset = high ? 4 : 0;
    for (int j = 0; j <= cells; ++j) {
        const int x = int(j * double(c) + 30);
        d.bars.append(QLine(x, s + 10, x, bottom));
        if (j > 0)
            d.texts.append({ QPoint(x - c / 2 - 3, (m + 1) * s + 10), QString::number(j + numberOffset) });
    }

    // The first entry is the lowest row; nothing is clipped, so a fret
    // beyond the drawn cells lies past the last fret line.
    const int markSize = int(H / 10.0);
    int y = n * s - markSize / 2 + 10;
    for (int v : tab) {
        Mark mark;
        if (v > 0) {
            mark.kind = Mark::Dot;
            mark.rect = QRect((v - numberOffset) * c - c / 2 - markSize / 2 + 30, y, markSize, markSize);
        } else {
            mark.kind = v == 0 ? Mark::Open : Mark::Cross;
            mark.rect = QRect(QPoint(30 - markSize - H / 40, y), QPoint(29 - H / 40, y + markSize - 1));
        }
        d.marks.append(mark);
        y -= s;
    }

    d.nutWidth = H / 20;
    if (!high)
        d.nut = QLine(30, s + 10, 30, bottom);
    return d;
}

ChordDiagram ChordDiagram::tablature(const QSize& size, const QVector<int>& tab)
{
    const int W = size.width();
    const int H = size.height();
    const int n = tab.size();
    ChordDiagram d;
    d.headingPixelSize = H / 7 + 7;
    d.penWidth = H / 50;
    d.textPixelSize = H / 7;

    const int s = (H - 10) / (n + 1);
    d.tabLettersPixelSize = H / 7 + (n * 10) / 40;
    d.tabLetters = QRect(QPoint(40, s + 15), QPoint(W - 41, n * s + 14));
    for (int i = 1; i <= n; ++i) {
        const int y = 15 + i * s;
        d.strings.append(QLine(40, y, W - 40, y));
        // The last string lies on top.
        const int v = tab.at(n - i);
        if (v >= 0)
            d.texts.append({ QPoint(W / 2, y + H / 14 - 1), QString::number(v) });
    }
    d.bars.append(QLine(40, s + 15, 40, n * s + 15));
    d.bars.append(QLine(44, s + 15, 44, n * s + 15));
    return d;
}

} // namespace QMMusic
