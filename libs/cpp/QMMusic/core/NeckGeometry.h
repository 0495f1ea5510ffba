#pragma once

#include <QString>
#include <QVector>

namespace QMMusic {

// The geometry of the drawn guitar neck in design units (800 by 194), taken
// from the hit boxes so that the picture fits them: one straight line per
// string through its box centres, fret wires midway between the columns,
// and the places of every note from the standard tuning.
class NeckGeometry
{
public:
    struct Place
    {
        int string = 0;
        int column = 0;
    };

    NeckGeometry();

    // y of string 1 (E4) to 6 (E2) at x, from a least-squares line.
    double stringY(int string, double x) const;
    // Greatest distance of a box centre from its string's line.
    double worstMiss() const;
    // Distance between neighbouring strings at x.
    double spacing(double x) const;
    // Upper and lower edge of the fingerboard at x.
    double boardTop(double x) const;
    double boardBottom(double x) const;
    // x of the nut (index 0) and of the wires of frets 1 to 22.
    const QVector<double>& wires() const;
    // Middle of the cell behind fret 1 to 22, where inlays sit.
    double cellMiddle(int fret) const;

    // The 47 file stems from E2 to D6.
    static QVector<QString> stems();
    // Places of a stem on the neck: open column and frets 1 to 22.
    static QVector<Place> places(const QString& stem);

private:
    double m_intercept[6] = {};
    double m_slope[6] = {};
    double m_worstMiss = 0.0;
    QVector<double> m_wires;
};

} // namespace QMMusic
