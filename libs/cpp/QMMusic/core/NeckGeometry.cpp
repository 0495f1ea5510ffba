#include "NeckGeometry.h"

#include "GuitarFretMap.h"

#include <QtMath>

namespace QMMusic {

namespace {

// Semitones above E2 of the open strings 1 to 6.
const int kOpenStrings[GuitarFretMap::StringCount] = { 24, 19, 15, 10, 5, 0 };
const int kFrets = 22;

const char* const kPitchClasses[12] = { "C", "Cd", "D", "Dd", "E", "F", "Fd", "G", "Gd", "A", "Ad", "B" };

// Stem of the note this many semitones above E2.
QString stemAbove(int semitones)
{
    const int pitch = semitones + 4 + 2 * 12;
    return QLatin1String(kPitchClasses[pitch % 12]) + QString::number(pitch / 12);
}

} // namespace

NeckGeometry::NeckGeometry()
{
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        double sx = 0, sy = 0, sxx = 0, sxy = 0;
        const int n = GuitarFretMap::ColumnCount;
        for (int column = 0; column < n; ++column) {
            const QPoint c = GuitarFretMap::centre(string, column);
            sx += c.x();
            sy += c.y();
            sxx += double(c.x()) * c.x();
            sxy += double(c.x()) * c.y();
        }
        const double slope = (n * sxy - sx * sy) / (n * sxx - sx * sx);
        m_slope[string - 1] = slope;
        m_intercept[string - 1] = (sy - slope * sx) / n;
        for (int column = 0; column < n; ++column) {
            const QPoint c = GuitarFretMap::centre(string, column);
            m_worstMiss = qMax(m_worstMiss, qAbs(stringY(string, c.x()) - c.y()));
        }
    }

    QVector<double> columnX;
    for (int column = 0; column < GuitarFretMap::ColumnCount; ++column) {
        double sum = 0;
        for (int string = 1; string <= GuitarFretMap::StringCount; ++string)
            sum += GuitarFretMap::centre(string, column).x();
        columnX.append(sum / GuitarFretMap::StringCount);
    }
    for (int column = 0; column + 1 < columnX.size(); ++column)
        m_wires.append((columnX.at(column) + columnX.at(column + 1)) / 2.0);
}

double NeckGeometry::stringY(int string, double x) const
{
    const int i = qBound(1, string, GuitarFretMap::StringCount) - 1;
    return m_intercept[i] + m_slope[i] * x;
}

double NeckGeometry::worstMiss() const
{
    return m_worstMiss;
}

double NeckGeometry::spacing(double x) const
{
    return (stringY(6, x) - stringY(1, x)) / 5.0;
}

double NeckGeometry::boardTop(double x) const
{
    return stringY(1, x) - 0.62 * spacing(x);
}

double NeckGeometry::boardBottom(double x) const
{
    return stringY(6, x) + 0.62 * spacing(x);
}

const QVector<double>& NeckGeometry::wires() const
{
    return m_wires;
}

double NeckGeometry::cellMiddle(int fret) const
{
    const int i = qBound(1, fret, kFrets);
    return (m_wires.at(i - 1) + m_wires.at(i)) / 2.0;
}

QVector<QString> NeckGeometry::stems()
{
    QVector<QString> result;
    for (int semitones = 0; semitones <= kOpenStrings[0] + kFrets; ++semitones)
        result.append(stemAbove(semitones));
    return result;
}

QVector<NeckGeometry::Place> NeckGeometry::places(const QString& stem)
{
    QVector<Place> result;
    for (int string = 1; string <= GuitarFretMap::StringCount; ++string) {
        for (int fret = 0; fret <= kFrets; ++fret) {
            if (stemAbove(kOpenStrings[string - 1] + fret) == stem)
                result.append({ string, fret });
        }
    }
    return result;
}

} // namespace QMMusic
