#pragma once

#include <QMap>
#include <QPair>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QVector>

namespace QMMusic {

// The arithmetic of the drawn grand staff: line height, the half-line under a
// pixel row and the note it names, the limit above the staff, the boxes of
// head, sign and clefs, and the per-instrument rows of the natural notes.
// All in single precision, so that the widget and its tests agree to the pixel.
class StaffGeometry
{
public:
    // The widget height at which the per-instrument rows were measured.
    static constexpr int referenceHeight = 324;
    // Half-line index of middle C (the ledger line between the staves).
    static constexpr int c4 = 30;

    void setHeight(int height) { m_height = height; }
    void setPaperHeightFactor(float factor) { m_paperHeightFactor = factor; }
    void setStartLine(int line) { m_startLine = line; }
    void setLines(int lines) { m_lines = lines; }
    void setTranslateLines(int lines) { m_translateLines = lines; }

    int height() const { return m_height; }
    int startLine() const { return m_startLine; }
    int lines() const { return m_lines; }

    float lineHeight() const;
    // Vertical shift of the whole staff: translate lines times line height.
    float translation() const;
    float lineY(int line) const;
    float noteWidth() const;
    float shortLineWidth() const;

    // The half-line that a pixel row falls into (truncated, not rounded).
    int halfLineIndex(float y) const;
    // Top of the head's box when it sits on half-line h.
    float noteTop(int halfLine) const;
    // True when a head with this top would stand more than about a line
    // above the first drawn line: such a point names nothing.
    bool isAboveLimit(float noteTop) const;

    QRect noteRect(int widgetWidth, float noteTop) const;
    QPoint signBasePoint(int widgetWidth, float noteTop) const;
    int signPixelSize() const;
    // The pictures of the sharp and flat in front of the head: the music
    // font's glyph drawn at a staff space of signPictureSpace pixels, its
    // reference line (the note's centre) signSpacesAbove spaces from the top
    // of a picture signSpacesAbove + signSpacesBelow spaces high.
    static constexpr int signPictureSpace = 32;
    static constexpr float signSpacesAbove = 3.0f;
    static constexpr float signSpacesBelow = 1.5f;
    // Where such a picture of the given size goes: from the sign's base
    // point, scaled so that a picture space is a line height of the staff.
    QRectF signRect(int widgetWidth, float noteTop, const QSize& pictureSize) const;
    QRect violinKeyRect() const;
    QRect bassKeyRect() const;

    // Letter index in "CDEFGAB" and octave of half-line h; false beyond C0..B8.
    static bool noteOfIndex(int halfLine, int* letterIndex, int* octave);
    // "E4" and the like; empty beyond the range.
    static QString nameOfIndex(int halfLine);
    // Half-line of a natural note name such as "E4"; false for anything else.
    static bool indexOfName(const QString& name, int* halfLine);

    // The hand-tuned rows (note name, y at the reference height) of an
    // instrument, compared in lower case; empty for an unknown instrument.
    static QVector<QPair<QString, int>> referenceRows(const QString& instrumentName);
    // trunc(K * height / 324), moved to the nearest row inside the note's own
    // half-line where the scaling lands in a neighbouring one.
    int rowOfNote(const QString& name, int referenceRow) const;
    QMap<QString, int> namePositions(const QString& instrumentName) const;
    // The pixel row of this staff that lies in the same half-line as `y` of
    // `from`, at the same place within it as far as pixels allow: what a
    // stored pointer row becomes when the staff changes its size.
    int rowFrom(const StaffGeometry& from, int y) const;

private:
    int m_height = 0;
    float m_paperHeightFactor = 1.0f;
    int m_startLine = 0;
    int m_lines = 27;
    int m_translateLines = 0;
};

} // namespace QMMusic
