#pragma once

#include <QString>
#include <QVector>

namespace QMMusic {

// The board's choice of a training question: one position name drawn
// uniformly, with the generator seeded from the clock's millisecond at
// every draw, so nothing remembers the previous question.
class TrainingDraw
{
public:
    // The positions must not be empty.
    static QString pick(const QVector<QString>& positions);
};

} // namespace QMMusic
