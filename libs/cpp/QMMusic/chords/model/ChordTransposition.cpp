#include "ChordTransposition.h"

#include "ChordName.h"

namespace QMMusic {

QStringList ChordTransposition::flatScale()
{
    const QString flat = ChordName::flatSign();
    const QStringList octave { QStringLiteral("C"), QStringLiteral("D") + flat, QStringLiteral("D"),
        QStringLiteral("E") + flat, QStringLiteral("E"), QStringLiteral("F"), QStringLiteral("G") + flat,
        QStringLiteral("G"), QStringLiteral("A") + flat, QStringLiteral("A"), QStringLiteral("B") + flat,
        QStringLiteral("B") };
    return octave + octave;
}

QStringList ChordTransposition::sharpScale()
{
    const QString sharp = ChordName::sharpSign();
    const QStringList octave { QStringLiteral("C"), QStringLiteral("C") + sharp, QStringLiteral("D"),
        QStringLiteral("D") + sharp, QStringLiteral("E"), QStringLiteral("F"), QStringLiteral("F") + sharp,
        QStringLiteral("G"), QStringLiteral("G") + sharp, QStringLiteral("A"), QStringLiteral("A") + sharp,
        QStringLiteral("B") };
    return octave + octave;
}

QString ChordTransposition::transpose(const QString& text, int steps, bool up)
{
    if (steps < 0 || steps > 11)
        return text;
    const QStringList lines = text.split(QLatin1Char('\n'));
    const QString root = lines.first();
    const QString suffix = lines.size() > 1 ? lines.last() : QString();
    const QString name = QString(text).remove(QLatin1Char('\n'));
    // Each scale holds its twelve names twice: from the first place up or
    // the last place down, eleven steps stay inside it.
    const QStringList scale = name.contains(QLatin1Char('#')) ? sharpScale() : flatScale();
    const int place = up ? scale.indexOf(root) : scale.lastIndexOf(root);
    if (place < 0)
        return text;
    return tabText(scale.at(up ? place + steps : place - steps), suffix);
}

QStringList ChordTransposition::menuTexts()
{
    QStringList texts;
    for (int n = 11; n >= 1; --n)
        texts.append(QString::number(n) + QStringLiteral(" #"));
    for (int n = 1; n <= 11; ++n)
        texts.append(QString::number(n) + QLatin1Char(' ') + ChordName::flatSign());
    return texts;
}

int ChordTransposition::steps(const QString& menuText, bool up)
{
    const QString number = menuText.split(up ? QString(QLatin1Char(' ')) : ChordName::flatSign()).first();
    bool ok = false;
    const int result = number.toInt(&ok);
    return ok ? result : -1;
}

QString ChordTransposition::tabText(const QString& root, const QString& suffix)
{
    return root + QLatin1Char('\n') + suffix;
}

} // namespace QMMusic
