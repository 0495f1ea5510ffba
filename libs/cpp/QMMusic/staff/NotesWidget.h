#pragma once

#include "StaffGeometry.h"

#include <QFrame>
#include <QMap>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QVector>

class QLabel;
class QPainter;
class QPushButton;

namespace QMMusic {

// The drawn grand staff: hovering names the note under the pointer, a press
// also sounds it, and a note set from outside moves the head to its place.
class NotesWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(NotesWidget)

public:
    explicit NotesWidget(QWidget* parent = nullptr);

    void setPaperHeightFactor(const float& factor);
    void setStartLine(const int& line);
    void setLines(const int& lines);
    void setTranslateLines(const int& lines);
    void setNoBass(bool noBass);
    void setNoViolin(bool noViolin);
    void setInstrumentName(const QString& name);

    bool isFlat() const;
    bool isSharp() const;
    bool isNatural() const;

    float linesHeight() const;
    int c4() const;
    float shortLineWidth() const;
    float noteWidth() const;
    int pianoLines() const;

    // (10, y) with the note's row in the per-instrument table; y is 0 for a
    // name the table does not hold.
    QPoint nameToPos(const QString& name) const;

    void setNote(const QString& name, const QString& solfegeName);
    void setNoteLabel(const QString& name, const QString& solfegeName, int accidental);

signals:
    void noteChanged(const QString& name, int accidental);

public slots:
    void slotShowNote(const QString& name, int accidental);
    void slotSetFlat();
    void slotSetSharp();
    void slotSetNatural();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // Sounds the sample of a press; the one way out to the audio pool.
    virtual void playSample(const QString& path);

private:
    StaffGeometry staffGeometry() const;
    void generateNamePosMap();
    void translateSolfege();
    void regenerateKeys(const StaffGeometry& geometry);
    void drawNote(QPainter& painter, const StaffGeometry& geometry);
    void checkSignButton(QPushButton* button);
    qreal pixelRatio() const;

    QPoint m_notePoint;
    QVector<QString> m_solfege;
    QString m_currentName;
    QLabel* m_noteLabel = nullptr;
    QPushButton* m_flatButton = nullptr;
    QPushButton* m_sharpButton = nullptr;
    QPushButton* m_naturalButton = nullptr;
    QPixmap m_notePixmap;
    QMap<QString, int> m_namePosMap;
    QString m_instrumentName;
    float m_paperHeightFactor = 1.0f;
    int m_startLine = 0;
    int m_lines = 27;
    int m_translateLines = 0;
    QPixmap m_violinKeyPixmap;
    QPixmap m_bassKeyPixmap;
    bool m_regenerateKeys = true;
    bool m_regenerateNote = true;
    bool m_noBass = false;
    bool m_noViolin = false;
};

} // namespace QMMusic
