#include "TunerDialGeometry.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace QMMusic {

TunerDialGeometry::TunerDialGeometry(const QSizeF& size)
    : m_size(size)
{
    // The face keeps a width of twice its height whatever the widget's shape.
    const double width = std::min(size.width(), size.height() * 2.0);
    const double height = width / 2.0;
    m_face = QRectF((size.width() - width) / 2.0, (size.height() - height) / 2.0, width, height);
}

QRectF TunerDialGeometry::face() const
{
    return m_face;
}

QPointF TunerDialGeometry::pivot() const
{
    return QPointF(m_face.center().x(), m_face.bottom() - m_face.height() * 0.08);
}

double TunerDialGeometry::radius() const
{
    return m_face.height() * 0.80;
}

QPointF TunerDialGeometry::pointAt(double cents, double radiusShare) const
{
    const double angle = qDegreesToRadians(angleForCents(cents));
    const double length = radius() * radiusShare;
    return pivot() + QPointF(std::sin(angle) * length, -std::cos(angle) * length);
}

QRectF TunerDialGeometry::arcRect(double radiusShare) const
{
    const double length = radius() * radiusShare;
    return QRectF(pivot().x() - length, pivot().y() - length, 2.0 * length, 2.0 * length);
}

QRectF TunerDialGeometry::nameRect() const
{
    const double width = radius() * 0.48;
    return QRectF(pivot().x() - width / 2.0, pivot().y() - radius() * 0.50, width, radius() * 0.32);
}

QRectF TunerDialGeometry::readingRect() const
{
    const double width = radius() * 0.48;
    return QRectF(pivot().x() - width / 2.0, pivot().y() - radius() * 0.18, width, radius() * 0.16);
}

double TunerDialGeometry::angleForCents(double cents)
{
    const double held = std::clamp(cents, -RangeCents, RangeCents);
    return held / RangeCents * SweepDegrees;
}

bool TunerDialGeometry::isInTune(double cents)
{
    return std::abs(cents) <= InTuneCents;
}

double TunerDialGeometry::eased(double shown, double target)
{
    return shown + (target - shown) * Easing;
}

} // namespace QMMusic
