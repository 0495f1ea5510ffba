#include "ChordName.h"

namespace QMMusic {

namespace {

// Natural letters of the roots in index order, and the accidental of each:
// -1 flat, 0 natural.
const char kRootLetters[ChordName::RootCount] = { 'A', 'A', 'B', 'B', 'C', 'D', 'D', 'E', 'E', 'F', 'G', 'G' };
const int kRootFlats[ChordName::RootCount] = { 0, -1, 0, -1, 0, 0, -1, 0, -1, 0, 0, -1 };
const int kRootPitchClasses[ChordName::RootCount] = { 9, 8, 11, 10, 0, 2, 1, 4, 3, 5, 7, 6 };
// The second spelling of each root: a sharp letter (accidental 1) or a flat
// one; D and G have none.
const char kOtherLetters[ChordName::RootCount] = { 0, 'G', 'C', 'A', 'B', 0, 'C', 'F', 'D', 'E', 0, 'F' };
const int kOtherAccidentals[ChordName::RootCount] = { 0, 1, -1, 1, 1, 0, 1, -1, 1, 1, 0, 1 };
const char* const kSuffixes[ChordName::TypeCount]
    = { "", "m", "aug", "dim", "6", "m6", "7", "maj7", "m7", "9", "sus4" };

QString spell(char letter, int accidental)
{
    QString result { QLatin1Char(letter) };
    if (accidental < 0)
        result += ChordName::flatSign();
    else if (accidental > 0)
        result += ChordName::sharpSign();
    return result;
}

} // namespace

QString ChordName::rootName(int root)
{
    if (root < 0 || root >= RootCount)
        return QString();
    return spell(kRootLetters[root], kRootFlats[root]);
}

QStringList ChordName::rootSpellings(int root)
{
    if (root < 0 || root >= RootCount)
        return QStringList();
    QStringList result { rootName(root) };
    if (kOtherLetters[root])
        result.append(spell(kOtherLetters[root], kOtherAccidentals[root]));
    return result;
}

QString ChordName::suffix(int type)
{
    if (type < 0 || type >= TypeCount)
        return QString();
    return QLatin1String(kSuffixes[type]);
}

QString ChordName::name(int chord)
{
    if (!isValid(chord))
        return QString();
    return rootName(root(chord)) + suffix(type(chord));
}

int ChordName::indexOf(const QString& name)
{
    // The eleven suffixes with a root name in front are all distinct
    // strings, so at most one spelling matches.
    for (int type = 0; type < TypeCount; ++type) {
        for (int root = 0; root < RootCount; ++root) {
            for (const QString& spelling : rootSpellings(root)) {
                if (spelling + suffix(type) == name)
                    return root * TypeCount + type;
            }
        }
    }
    return FallbackChord;
}

int ChordName::rootPitchClass(int root)
{
    if (root < 0 || root >= RootCount)
        return -1;
    return kRootPitchClasses[root];
}

QString ChordName::flatSign()
{
    return QString(QChar(0x266D));
}

QString ChordName::sharpSign()
{
    return QStringLiteral(" #");
}

} // namespace QMMusic
