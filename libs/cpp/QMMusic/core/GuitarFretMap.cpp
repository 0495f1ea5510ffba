#include "GuitarFretMap.h"

#include <QRect>

#include <algorithm>

namespace QMMusic {

namespace {

// Measured on the drawn neck: per column the centres of strings 1 to 6 as
// x, y. The frets draw closer to the right and the strings spread apart.
const int kCentres[GuitarFretMap::ColumnCount][GuitarFretMap::StringCount][2] = {
    { { 106, 78 }, { 106, 87 }, { 110, 98 }, { 106, 111 }, { 104, 122 }, { 104, 132 } },
    { { 141, 78 }, { 143, 89 }, { 139, 100 }, { 141, 112 }, { 141, 121 }, { 141, 133 } },
    { { 183, 78 }, { 183, 89 }, { 183, 102 }, { 184, 114 }, { 183, 125 }, { 182, 136 } },
    { { 223, 77 }, { 223, 90 }, { 223, 100 }, { 222, 113 }, { 221, 125 }, { 223, 134 } },
    { { 261, 78 }, { 261, 89 }, { 262, 101 }, { 261, 113 }, { 261, 123 }, { 261, 136 } },
    { { 299, 78 }, { 300, 89 }, { 300, 102 }, { 300, 113 }, { 299, 126 }, { 300, 139 } },
    { { 336, 78 }, { 335, 90 }, { 335, 105 }, { 334, 116 }, { 335, 125 }, { 336, 138 } },
    { { 372, 77 }, { 370, 89 }, { 371, 102 }, { 371, 115 }, { 369, 127 }, { 370, 140 } },
    { { 405, 77 }, { 406, 90 }, { 405, 103 }, { 406, 116 }, { 405, 127 }, { 403, 140 } },
    { { 438, 78 }, { 437, 90 }, { 438, 102 }, { 437, 118 }, { 438, 127 }, { 438, 140 } },
    { { 470, 76 }, { 470, 90 }, { 471, 103 }, { 469, 115 }, { 470, 128 }, { 470, 142 } },
    { { 500, 76 }, { 501, 90 }, { 500, 104 }, { 500, 116 }, { 500, 129 }, { 500, 141 } },
    { { 531, 74 }, { 532, 89 }, { 532, 102 }, { 532, 116 }, { 531, 130 }, { 532, 143 } },
    { { 559, 75 }, { 559, 89 }, { 559, 104 }, { 560, 116 }, { 559, 129 }, { 558, 143 } },
    { { 588, 74 }, { 586, 90 }, { 587, 102 }, { 587, 116 }, { 586, 130 }, { 586, 143 } },
    { { 613, 73 }, { 613, 89 }, { 613, 104 }, { 613, 116 }, { 613, 130 }, { 613, 144 } },
    { { 640, 74 }, { 639, 90 }, { 638, 103 }, { 638, 117 }, { 638, 130 }, { 638, 145 } },
    { { 662, 75 }, { 662, 87 }, { 662, 102 }, { 662, 117 }, { 662, 132 }, { 662, 144 } },
    { { 684, 74 }, { 684, 88 }, { 684, 104 }, { 684, 117 }, { 684, 130 }, { 684, 146 } },
    { { 707, 73 }, { 707, 88 }, { 707, 104 }, { 707, 117 }, { 706, 133 }, { 707, 146 } },
    { { 727, 75 }, { 728, 88 }, { 728, 104 }, { 729, 117 }, { 729, 133 }, { 729, 146 } },
    { { 749, 74 }, { 749, 88 }, { 749, 102 }, { 750, 118 }, { 749, 132 }, { 748, 147 } },
    { { 767, 74 }, { 768, 89 }, { 768, 103 }, { 766, 118 }, { 767, 133 }, { 768, 148 } },
    { { 788, 74 }, { 788, 89 }, { 788, 103 }, { 789, 119 }, { 787, 133 }, { 787, 149 } },
};

// The note under each box, string by string; the far end repeats the open string.
const char* const kNames[GuitarFretMap::StringCount][GuitarFretMap::ColumnCount] = {
    { "E4", "F4", "F4#", "G4", "G4#", "A4", "A4#", "B4", "C5", "C5#", "D5", "D5#", "E5", "F5", "F5#", "G5", "G5#", "A5",
        "A5#", "B5", "C6", "C6#", "D6", "E4" },
    { "B3", "C4", "C4#", "D4", "D4#", "E4", "F4", "F4#", "G4", "G4#", "A4", "A4#", "B4", "C5", "C5#", "D5", "D5#", "E5",
        "F5", "F5#", "G5", "G5#", "A5", "B3" },
    { "G3", "G3#", "A3", "A3#", "B3", "C4", "C4#", "D4", "D4#", "E4", "F4", "F4#", "G4", "G4#", "A4", "A4#", "B4", "C5",
        "C5#", "D5", "D5#", "E5", "F5", "G3" },
    { "D3", "D3#", "E3", "F3", "F3#", "G3", "G3#", "A3", "A3#", "B3", "C4", "C4#", "D4", "D4#", "E4", "F4", "F4#", "G4",
        "G4#", "A4", "A4#", "B4", "C5", "D3" },
    { "A2", "A2#", "B2", "C3", "C3#", "D3", "D3#", "E3", "F3", "F3#", "G3", "G3#", "A3", "A3#", "B3", "C4", "C4#", "D4",
        "D4#", "E4", "F4", "F4#", "G4", "A2" },
    { "E2", "F2", "F2#", "G2", "G2#", "A2", "A2#", "B2", "C3", "C3#", "D3", "D3#", "E3", "F3", "F3#", "G3", "G3#", "A3",
        "A3#", "B3", "C4", "C4#", "D4", "E2" },
};

struct Box
{
    QString name;
    QPoint centre;
};

// All 144 boxes, sorted by the rank of their note in the test order.
const QVector<Box>& orderedBoxes()
{
    static const QVector<Box> boxes = [] {
        const QVector<QString>& order = GuitarFretMap::noteOrder();
        QVector<Box> result;
        for (const QString& note : order) {
            for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
                for (int column = 0; column < GuitarFretMap::ColumnCount; ++column) {
                    if (GuitarFretMap::positionName(string, column) == note)
                        result.append({ note, GuitarFretMap::centre(string, column) });
                }
            }
        }
        return result;
    }();
    return boxes;
}

} // namespace

QPoint GuitarFretMap::centre(int string, int column)
{
    if (string < 1 || string > StringCount || column < 0 || column >= ColumnCount)
        return QPoint();
    return QPoint(kCentres[column][string - 1][0], kCentres[column][string - 1][1]);
}

QString GuitarFretMap::positionName(int string, int column)
{
    if (string < 1 || string > StringCount || column < 0 || column >= ColumnCount)
        return QString();
    return QLatin1String(kNames[string - 1][column]);
}

bool GuitarFretMap::boxContains(int x, int y, const QPoint& p)
{
    return QRect(x - 16, y - 5, 32, 10).contains(QRect(p, QSize(1, 1)), false);
}

const QVector<QString>& GuitarFretMap::noteOrder()
{
    static const QVector<QString> order = {
        QStringLiteral("E2"),
        QStringLiteral("F2"),
        QStringLiteral("G2"),
        QStringLiteral("A2"),
        QStringLiteral("B2"),
        QStringLiteral("C3"),
        QStringLiteral("D3"),
        QStringLiteral("E3"),
        QStringLiteral("F3"),
        QStringLiteral("G3"),
        QStringLiteral("A3"),
        QStringLiteral("B3"),
        QStringLiteral("C4"),
        QStringLiteral("D4"),
        QStringLiteral("E4"),
        QStringLiteral("F4"),
        QStringLiteral("G4"),
        QStringLiteral("A4"),
        QStringLiteral("B4"),
        QStringLiteral("C5"),
        QStringLiteral("D5"),
        QStringLiteral("E5"),
        QStringLiteral("F5"),
        QStringLiteral("G5"),
        QStringLiteral("A5"),
        QStringLiteral("B5"),
        QStringLiteral("C6"),
        QStringLiteral("D6"),
        QStringLiteral("F2#"),
        QStringLiteral("G2#"),
        QStringLiteral("A2#"),
        QStringLiteral("C3#"),
        QStringLiteral("D3#"),
        QStringLiteral("F3#"),
        QStringLiteral("G3#"),
        QStringLiteral("A3#"),
        QStringLiteral("C4#"),
        QStringLiteral("D4#"),
        QStringLiteral("F4#"),
        QStringLiteral("G4#"),
        QStringLiteral("A4#"),
        QStringLiteral("C5#"),
        QStringLiteral("D5#"),
        QStringLiteral("F5#"),
        QStringLiteral("G5#"),
        QStringLiteral("A5#"),
        QStringLiteral("C6#"),
    };
    return order;
}

bool GuitarFretMap::toDesign(int x, int y, int width, int height, QPoint* design)
{
    if (width <= 0 || height <= 0)
        return false;
    const float px = x * float(DesignWidth) / width;
    const float py = y * float(DesignHeight) / height;
    *design = QPoint(int(px), int(py));
    return true;
}

QString GuitarFretMap::noteAtDesignPoint(const QPoint& design)
{
    const QVector<Box>& boxes = orderedBoxes();
    const auto hit = std::find_if(boxes.cbegin(), boxes.cend(),
        [&design](const Box& box) { return boxContains(box.centre.x(), box.centre.y(), design); });
    return hit == boxes.cend() ? QString() : hit->name;
}

QString GuitarFretMap::noteAt(int x, int y, int width, int height)
{
    QPoint design;
    if (!toDesign(x, y, width, height, &design))
        return QString();
    return noteAtDesignPoint(design);
}

} // namespace QMMusic
