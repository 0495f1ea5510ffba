#include "BoardBase.h"

#include "FingerboardMap.h"
#include "GuitarFretMap.h"
#include "NoteSpelling.h"
#include "OverlayStrip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace QMMusic {

BoardBase::BoardBase(const QString& instrumentKey, QWidget* parent)
    : QFrame(parent)
    , m_behaviour(
          this, instrumentKey, [this](int x, int y) { return positionToNote(x, y); },
          [this](const QString& name, int accidental) { emit noteChanged(name, accidental); })
{
    setMinimumSize(800, 250);
    createLayers();
    connect(m_behaviour.trainingButton(), &QPushButton::clicked, this, &BoardBase::traningSelected);
    connect(m_behaviour.findNoteButton(), &QPushButton::clicked, this, &BoardBase::findNoteSelected);
}

bool BoardBase::isIn(const int& x, const int& y, const QPoint& p) const
{
    return GuitarFretMap::boxContains(x, y, p);
}

QPixmap BoardBase::doSingleNote(const QPixmap& overlay)
{
    return OverlayStrip::keepRandomStrip(overlay, BoardLayers::pixelRatio());
}

void BoardBase::createLayers()
{
    m_behaviour.setNotes(m_fileStems, m_trainingNotes);
}

void BoardBase::appendNotes(const FingerboardMap& map)
{
    for (const QString& position : map.positions()) {
        m_fileStems.append(NoteSpelling::positionStem(position));
        m_trainingNotes.append(position);
    }
}

QString BoardBase::noteOn(const FingerboardMap& map, int x, int y) const
{
    return map.noteAt(x, y, width(), height(), [this](int cx, int cy, const QPoint& p) { return isIn(cx, cy, p); });
}

void BoardBase::setTrainButtonChecked()
{
    m_behaviour.trainingButton()->setChecked(true);
}

bool BoardBase::isInTraining() const
{
    return m_behaviour.isInTraining();
}

QString BoardBase::currentNote() const
{
    return m_behaviour.currentNote();
}

QString BoardBase::instrumentKey() const
{
    return m_behaviour.instrumentKey();
}

const QMap<QString, QString>& BoardBase::overlayMap() const
{
    return m_behaviour.overlayMap();
}

void BoardBase::slotSetNote(const QString& name, int accidental)
{
    m_behaviour.setNote(name, accidental);
}

void BoardBase::slotNextNote()
{
    m_behaviour.nextNote();
}

void BoardBase::slotSetInTraining(bool inTraining)
{
    m_behaviour.setInTraining(inTraining);
}

void BoardBase::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_behaviour.paint(painter, [this](const QPixmap& overlay) { return doSingleNote(overlay); });
}

void BoardBase::mousePressEvent(QMouseEvent* event)
{
    if (!m_behaviour.press(event->pos()))
        QWidget::mousePressEvent(event);
}

void BoardBase::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    m_behaviour.fitHeight();
}

} // namespace QMMusic
