#include "ChordPictures.h"

namespace QMMusic {

QString ChordPictures::libraryOffset()
{
    return QStringLiteral("libs/cpp/QMMusic/");
}

QString ChordPictures::folder()
{
    return QStringLiteral("_resources/imgs/Chords/");
}

QString ChordPictures::pianoCode(const QVector<int>& tab)
{
    QString code;
    for (int k = 0; k < 12; ++k)
        code += tab.value(k, -1) == 0 || tab.value(k + 12, -1) == 0 ? QLatin1Char('0') : QLatin1Char('X');
    return code;
}

QString ChordPictures::photoCode(const QString& key, const QVector<int>& tab)
{
    if (key == QLatin1String("piano"))
        return pianoCode(tab);
    QString code;
    for (int v : tab)
        code += v < 0 ? QStringLiteral("X") : QString::number(v);
    return code;
}

QString ChordPictures::photoName(const QString& key, const QVector<int>& tab)
{
    return folder() + key + QLatin1Char('_') + photoCode(key, tab) + QStringLiteral(".jpg");
}

QString ChordPictures::keysName(const QVector<int>& tab, bool tablature)
{
    return folder() + (tablature ? QStringLiteral("b_") : QStringLiteral("a_")) + pianoCode(tab)
        + QStringLiteral(".png");
}

} // namespace QMMusic
