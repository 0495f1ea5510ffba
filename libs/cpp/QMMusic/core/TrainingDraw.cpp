#include "TrainingDraw.h"

#include <QRandomGenerator>
#include <QTime>

namespace QMMusic {

QString TrainingDraw::pick(const QVector<QString>& positions)
{
    QRandomGenerator generator(quint32(QTime::currentTime().msec()));
    return positions.at(int(generator.generate() % quint32(positions.size())));
}

} // namespace QMMusic
