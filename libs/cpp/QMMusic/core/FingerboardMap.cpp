#include "FingerboardMap.h"

#include "GuitarFretMap.h"
#include "NoteSpelling.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>
#include <memory>

namespace QMMusic {

namespace {

const char* const kPositionNames[12] = { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };

// "C4", "C4#": letter, octave, then the sharp.
QString positionName(int midiNote)
{
    const QString name = QLatin1String(kPositionNames[midiNote % 12]);
    return name.left(1) + QString::number(midiNote / 12 - 1) + name.mid(1);
}

bool ruleCovers(const FingerboardDesign::BoxRule& rule, int string, int column)
{
    return rule.string == string && column >= rule.firstColumn && column <= rule.lastColumn;
}

} // namespace

FingerboardMap::FingerboardMap(const FingerboardDesign& design)
    : m_design(design)
{
    for (int string = 1; string <= design.stringCount(); ++string) {
        for (int column = design.firstColumns.value(string - 1); column < design.columnCount(); ++column) {
            Box box;
            box.string = string;
            box.column = column;
            box.name = positionName(design.noteAt(string, column));
            double x = design.columnX(column);
            bool missing = false;
            for (const FingerboardDesign::BoxRule& rule : design.rules) {
                if (!ruleCovers(rule, string, column))
                    continue;
                if (rule.kind == FingerboardDesign::BoxRule::Missing)
                    missing = true;
                else if (rule.kind == FingerboardDesign::BoxRule::Named)
                    box.name = rule.name;
                else
                    x += rule.dx;
            }
            if (missing)
                continue;
            box.centre = QPoint(qRound(x), qRound(design.stringY(string, x)));
            m_boxes.append(box);
        }
    }

    for (int note = design.lowestNote; note <= design.highestNote && note > 0; ++note)
        m_positions.append(positionName(note));
    for (const QString& position : qAsConst(m_positions)) {
        if (!NoteSpelling::positionAccidental(position))
            m_noteOrder.append(position);
    }
    for (const QString& position : qAsConst(m_positions)) {
        if (NoteSpelling::positionAccidental(position))
            m_noteOrder.append(position);
    }

    QHash<QString, int> rank;
    for (int i = 0; i < m_noteOrder.size(); ++i)
        rank.insert(m_noteOrder.at(i), i);
    m_orderedBoxes = m_boxes;
    std::stable_sort(m_orderedBoxes.begin(), m_orderedBoxes.end(), [&rank](const Box& a, const Box& b) {
        return rank.value(a.name, rank.size()) < rank.value(b.name, rank.size());
    });
}

const FingerboardMap& FingerboardMap::forKey(const QString& key)
{
    // Built on first use and kept to the end of the program.
    static std::map<QString, std::unique_ptr<const FingerboardMap>> maps;
    std::unique_ptr<const FingerboardMap>& map = maps[key];
    if (!map)
        map = std::make_unique<const FingerboardMap>(FingerboardDesign::forKey(key));
    return *map;
}

const FingerboardDesign& FingerboardMap::design() const
{
    return m_design;
}

const QVector<FingerboardMap::Box>& FingerboardMap::boxes() const
{
    return m_boxes;
}

const QVector<QString>& FingerboardMap::positions() const
{
    return m_positions;
}

const QVector<QString>& FingerboardMap::noteOrder() const
{
    return m_noteOrder;
}

QString FingerboardMap::noteAtDesignPoint(const QPoint& design, const Contains& contains) const
{
    const auto hit = std::find_if(m_orderedBoxes.cbegin(), m_orderedBoxes.cend(),
        [&](const Box& box) { return contains(box.centre.x(), box.centre.y(), design); });
    return hit == m_orderedBoxes.cend() ? QString() : hit->name;
}

QString FingerboardMap::noteAt(int x, int y, int width, int height, const Contains& contains) const
{
    QPoint design;
    if (!GuitarFretMap::toDesign(x, y, width, height, &design))
        return QString();
    return noteAtDesignPoint(design, contains);
}

QVector<FingerboardMap::Box> FingerboardMap::places(const QString& stem) const
{
    QVector<Box> result;
    for (const Box& box : m_boxes) {
        if (NoteSpelling::positionStem(box.name) == stem)
            result.append(box);
    }
    return result;
}

QStringList FingerboardMap::problems() const
{
    QStringList found;
    const QSet<QString> range(m_positions.cbegin(), m_positions.cend());
    for (const Box& box : m_boxes) {
        const QString where
            = QStringLiteral("%1 string %2 column %3").arg(m_design.key).arg(box.string).arg(box.column);
        if (box.centre.x() < 0 || box.centre.x() >= GuitarFretMap::DesignWidth || box.centre.y() < 0
            || box.centre.y() >= GuitarFretMap::DesignHeight)
            found.append(where + QStringLiteral(": centre outside the design space"));
        if (!range.contains(box.name))
            found.append(where + QStringLiteral(": %1 is outside the range").arg(box.name));
        // Two centres of one string within a box's width of each other: the
        // hit test would hand one of them to the other's note.
        for (const Box& other : m_boxes) {
            if (other.string == box.string && other.column > box.column
                && GuitarFretMap::boxContains(other.centre.x(), other.centre.y(), box.centre))
                found.append(where + QStringLiteral(": inside the box of column %1").arg(other.column));
        }
    }
    return found;
}

} // namespace QMMusic
