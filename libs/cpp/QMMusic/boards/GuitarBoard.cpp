#include "GuitarBoard.h"

#include "GuitarFretMap.h"
#include "NoteSpelling.h"
#include "OverlayStrip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace QMMusic {

GuitarBoard::GuitarBoard(QWidget* parent)
    : QFrame(parent)
    , m_behaviour(
          this, QStringLiteral("Guitar"), [this](int x, int y) { return positionToNote(x, y); },
          [this](const QString& name, int accidental) { emit noteChanged(name, accidental); })
{
    // The 47 stems, E2 to D6, are the file spellings of the training notes.
    const QVector<QString> positions = GuitarFretMap::noteOrder();
    QList<QString> stems;
    for (const QString& position : positions)
        stems.append(NoteSpelling::positionStem(position));
    m_behaviour.setNotes(stems, positions);
    connect(m_behaviour.trainingButton(), &QPushButton::clicked, this, &GuitarBoard::traningSelected);
    connect(m_behaviour.findNoteButton(), &QPushButton::clicked, this, &GuitarBoard::findNoteSelected);
}

QString GuitarBoard::positionToNote(int x, int y) const
{
    return GuitarFretMap::noteAt(x, y, width(), height());
}

bool GuitarBoard::isIn(const int& x, const int& y, const QPoint& p) const
{
    return GuitarFretMap::boxContains(x, y, p);
}

QPixmap GuitarBoard::doSingleNote(const QPixmap& overlay)
{
    return OverlayStrip::keepRandomStrip(overlay, BoardLayers::pixelRatio());
}

void GuitarBoard::setTrainButtonChecked()
{
    m_behaviour.trainingButton()->setChecked(true);
}

bool GuitarBoard::isInTraining() const
{
    return m_behaviour.isInTraining();
}

QString GuitarBoard::currentNote() const
{
    return m_behaviour.currentNote();
}

const QMap<QString, QString>& GuitarBoard::overlayMap() const
{
    return m_behaviour.overlayMap();
}

const QVector<QString>& GuitarBoard::trainingNotes() const
{
    return m_behaviour.trainingNotes();
}

void GuitarBoard::slotSetNote(const QString& name, int accidental)
{
    m_behaviour.setNote(name, accidental);
}

void GuitarBoard::slotNextNote()
{
    m_behaviour.nextNote();
}

void GuitarBoard::slotSetInTraining(bool inTraining)
{
    m_behaviour.setInTraining(inTraining);
}

void GuitarBoard::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_behaviour.paint(painter, [this](const QPixmap& overlay) { return doSingleNote(overlay); });
}

void GuitarBoard::mousePressEvent(QMouseEvent* event)
{
    if (!m_behaviour.press(event->pos()))
        QWidget::mousePressEvent(event);
}

void GuitarBoard::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    m_behaviour.fitHeight();
}

} // namespace QMMusic
