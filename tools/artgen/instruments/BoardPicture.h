#pragma once

#include "GuitarFretMap.h"

#include <QPointF>
#include <QSize>

// The pictures of every board: the large one, its single-size copy, and
// the map from the boards' design units into the large one.
namespace BoardPicture {

inline const QSize LargeSize(2048, 497);
inline const QSize SmallSize(800, 194);
inline constexpr double Sx = 2048.0 / QMMusic::GuitarFretMap::DesignWidth;
inline constexpr double Sy = 497.0 / QMMusic::GuitarFretMap::DesignHeight;

inline QPointF toPicture(double x, double y)
{
    return QPointF(x * Sx, y * Sy);
}

} // namespace BoardPicture
