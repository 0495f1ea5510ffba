#pragma once

#include <QPoint>
#include <QString>
#include <QVector>
#include <QWidget>

class QMimeData;
class QPainter;
class QPixmap;

namespace QMMusic {

// One picture of a chord: the white ground, the chord's data and the drag
// that hands the picture to another program as "Chord.png".
class ChordBaseView : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordBaseView)

public:
    explicit ChordBaseView(QWidget* parent = nullptr);

    void setChordTabAndName(int chord, const QVector<int>& tab, const QString& name);
    // Stores the key ("guitar", "bass2", "piano"); it does not repaint.
    void setInstrumentName(const QString& name);
    // The piano's row folded onto the twelve pitch classes C to B.
    QString pianoTabToCode() const;

    int chord() const { return m_chord; }
    QVector<int> chordTab() const { return m_chordTab; }
    QString chordName() const { return m_chordName; }
    QString instrumentName() const { return m_instrumentName; }

    // Renders the view into the work directory's "Chord.png" and returns the
    // drag's data, one file:// URL of it, with the picture in *picture; null
    // if the file cannot be written.
    QMimeData* writeDragPicture(QPixmap* picture);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void startDrag();

    // ":/" + the application's resource offset + name.
    static QString resourcePath(const QString& name);
    static double pixelRatio(const QWidget* widget);
    // Loads a picture, scales it to the widget keeping its aspect, and draws
    // it centred; a missing picture draws nothing.
    void drawCentredPicture(QPainter* painter, const QString& resourceName) const;
    // The piano's keyboard picture ("a_" or "b_") under a name plate.
    void drawKeyboard(QPainter* painter, bool tablature) const;

private:
    QPoint m_dragStart;
    int m_chord = 0;
    QString m_chordName;
    QVector<int> m_chordTab;
    QString m_instrumentName;
};

} // namespace QMMusic
