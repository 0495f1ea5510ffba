#include "NoteSpelling.h"

namespace QMMusic {

int NoteSpelling::positionAccidental(const QString& positionName)
{
    return positionName.endsWith(QLatin1Char('#')) ? 1 : 0;
}

QString NoteSpelling::positionNoteName(const QString& positionName)
{
    return positionName.mid(0, 2);
}

QString NoteSpelling::positionStem(const QString& positionName)
{
    const QString sharp = positionAccidental(positionName) ? QStringLiteral("d") : QString();
    return positionName.mid(0, 1) + sharp + positionName.mid(1, 1);
}

QString NoteSpelling::stem(const QString& noteName, int accidental)
{
    const QString letter = noteName.mid(0, 1);
    const QString octaveText = noteName.mid(1, 1);
    const int octave = octaveText.toInt();
    if (accidental == 0)
        return letter + octaveText;

    const bool flat = accidental < 0;
    if (letter == QLatin1String("A"))
        return (flat ? QStringLiteral("Gd") : QStringLiteral("Ad")) + octaveText;
    if (letter == QLatin1String("B"))
        return flat ? QStringLiteral("Ad") + octaveText : QStringLiteral("C") + QString::number(octave + 1);
    if (letter == QLatin1String("C"))
        return flat ? QStringLiteral("B") + QString::number(octave - 1) : QStringLiteral("Cd") + octaveText;
    if (letter == QLatin1String("D"))
        return (flat ? QStringLiteral("Cd") : QStringLiteral("Dd")) + octaveText;
    if (letter == QLatin1String("E"))
        return (flat ? QStringLiteral("Dd") : QStringLiteral("F")) + octaveText;
    if (letter == QLatin1String("F"))
        return (flat ? QStringLiteral("E") : QStringLiteral("Fd")) + octaveText;
    if (letter == QLatin1String("G"))
        return (flat ? QStringLiteral("Fd") : QStringLiteral("Gd")) + octaveText;
    return letter + octaveText;
}

QString NoteSpelling::sampleFileName(const QString& instrumentKey, const QString& stem)
{
    return instrumentKey.toLower() + QStringLiteral("_440_") + stem + QStringLiteral(".mp3");
}

} // namespace QMMusic
