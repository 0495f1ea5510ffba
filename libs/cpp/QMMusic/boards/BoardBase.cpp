#include "BoardBase.h"

#include "AudioPoolPlayer.h"
#include "BoardModeSwitch.h"
#include "GuitarFretMap.h"
#include "NoteSamples.h"
#include "NoteSpelling.h"
#include "OverlayStrip.h"
#include "TrainingDraw.h"
#include "TranslatedTexts.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace QMMusic {

BoardBase::BoardBase(const QString& instrumentKey, QWidget* parent)
    : QFrame(parent)
    , m_layers(QStringLiteral(":/") + instrumentKey + QStringLiteral("_0@2x.jpg"))
    , m_instrumentKey(instrumentKey)
{
    setMinimumSize(800, 250);
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);
    createLayers();

    const BoardModeSwitch modeSwitch(this, QString(), QString());
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());
    texts->setText(modeSwitch.findNoteButton(), QT_TR_NOOP("Find Note"));
    texts->setText(modeSwitch.trainingButton(), QT_TR_NOOP("Training"));
    m_trainingButton = modeSwitch.trainingButton();
    connect(m_trainingButton, &QPushButton::clicked, this, &BoardBase::traningSelected);
    connect(modeSwitch.findNoteButton(), &QPushButton::clicked, this, &BoardBase::findNoteSelected);
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
    for (const QString& stem : qAsConst(m_fileStems)) {
        m_overlayMap.insert(QStringLiteral(":/") + m_instrumentKey + QStringLiteral("_%1.png").arg(stem),
            QStringLiteral(":/") + m_instrumentKey + QStringLiteral("_") + stem + QStringLiteral("@2x.png"));
    }
}

void BoardBase::setTrainButtonChecked()
{
    m_trainingButton->setChecked(true);
}

bool BoardBase::isInTraining() const
{
    return m_inTraining;
}

QString BoardBase::currentNote() const
{
    return m_currentNote;
}

QString BoardBase::instrumentKey() const
{
    return m_instrumentKey;
}

const QMap<QString, QString>& BoardBase::overlayMap() const
{
    return m_overlayMap;
}

void BoardBase::slotSetNote(const QString& name, int accidental)
{
    m_currentNote = NoteSpelling::stem(name, accidental);
    update();
}

void BoardBase::slotNextNote()
{
    if (m_trainingNotes.isEmpty())
        return;
    const QString position = TrainingDraw::pick(m_trainingNotes);
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    slotSetNote(name, sharp);
    emit noteChanged(name, sharp);
}

void BoardBase::slotSetInTraining(bool inTraining)
{
    m_inTraining = inTraining;
    update();
}

void BoardBase::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_layers.drawBackground(painter, rect());
    if (m_currentNote.isEmpty())
        return;
    const QString file
        = m_overlayMap[QStringLiteral(":/") + m_instrumentKey + QStringLiteral("_%1.png").arg(m_currentNote)];
    if (m_inTraining)
        BoardLayers::drawScaled(painter, rect(), doSingleNote(m_layers.overlay(file)));
    else
        m_layers.drawOverlay(painter, rect(), file);
}

void BoardBase::mousePressEvent(QMouseEvent* event)
{
    if (m_inTraining) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QString position = positionToNote(event->pos().x(), event->pos().y());
    if (position.isEmpty())
        return;
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    slotSetNote(name, sharp);
    emit noteChanged(name, sharp);
    NoteSamples::play(m_instrumentKey, NoteSpelling::positionStem(position));
}

void BoardBase::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    const int height = m_layers.heightForWidth(width());
    if (height > 0)
        setFixedHeight(height);
}

} // namespace QMMusic
