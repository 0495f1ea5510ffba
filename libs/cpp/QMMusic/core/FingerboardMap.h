#pragma once

#include "FingerboardDesign.h"

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace QMMusic {

// The hit boxes of one instrument's fingerboard, computed from its design,
// and the lookup from a press to the position name of the note there. The
// boxes are tested note by note, naturals from the lowest to the highest,
// then sharps from the lowest to the highest; a point in two boxes belongs
// to the note that comes first.
class FingerboardMap
{
public:
    struct Box
    {
        int string = 0;
        int column = 0;
        QPoint centre;
        QString name;
    };
    // Whether a box centred on (x, y) contains p; the boards pass their own.
    using Contains = std::function<bool(int x, int y, const QPoint& p)>;

    explicit FingerboardMap(const FingerboardDesign& design);
    // The map of an instrument key, built once.
    static const FingerboardMap& forKey(const QString& key);

    const FingerboardDesign& design() const;
    // Every box, string by string, column by column.
    const QVector<Box>& boxes() const;
    // The position names of the range, lowest first ("C4", "C4#", ...): the
    // training notes, one per stem.
    const QVector<QString>& positions() const;
    // The order of the hit test.
    const QVector<QString>& noteOrder() const;
    // Position name at a design point, or an empty string in the gaps.
    QString noteAtDesignPoint(const QPoint& design, const Contains& contains) const;
    // Position name at a widget point of a widget of the given size.
    QString noteAt(int x, int y, int width, int height, const Contains& contains) const;
    // The boxes whose press answers the note of a file stem: where its
    // overlay marks go.
    QVector<Box> places(const QString& stem) const;
    // What is wrong with the boxes: two centres of one string that lie in
    // each other's box, a centre outside the design space, a box named
    // outside the range.
    QStringList problems() const;

private:
    FingerboardDesign m_design;
    QVector<Box> m_boxes;
    QVector<QString> m_positions;
    QVector<QString> m_noteOrder;
    // m_boxes sorted by the rank of their note in m_noteOrder.
    QVector<Box> m_orderedBoxes;
};

} // namespace QMMusic
