#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace QMMusic {

// Where the parts of the tuner's dial lie in a widget of a given size: the
// pivot of the needle at the bottom centre, the scale of +-50 cents on an arc
// above it, the green zone, the needle's outer part that swings along the
// scale, and under it the string's name and the reading, which the needle
// never crosses. Also the needle's easing toward a new reading.
class TunerDialGeometry
{
public:
    static constexpr double RangeCents = 50.0;
    // Degrees from the vertical at either end of the scale.
    static constexpr double SweepDegrees = 55.0;
    static constexpr double InTuneCents = 3.0;
    // Share of the way to a new reading that the needle goes at each reading.
    static constexpr double Easing = 0.3;
    // The needle is drawn between these shares of the radius.
    static constexpr double NeedleBase = 0.56;
    static constexpr double NeedleTip = 0.97;

    explicit TunerDialGeometry(const QSizeF& size);

    QRectF face() const;
    QPointF pivot() const;
    double radius() const;
    // The point on the needle's line at the given share of the radius.
    QPointF pointAt(double cents, double radiusShare) const;
    // The square around the pivot whose inscribed circle has the given share of the radius.
    QRectF arcRect(double radiusShare) const;
    QRectF nameRect() const;
    QRectF readingRect() const;

    // Degrees from the vertical, clockwise, held to the ends of the scale.
    static double angleForCents(double cents);
    static bool isInTune(double cents);
    static double eased(double shown, double target);

private:
    QSizeF m_size;
    QRectF m_face;
};

} // namespace QMMusic
