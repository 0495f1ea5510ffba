#include "GuitarBoard.h"

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

GuitarBoard::GuitarBoard(QWidget* parent)
    : QFrame(parent)
{
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);

    // The 47 stems, E2 to D6, are the file spellings of the training notes.
    m_trainingNotes = GuitarFretMap::noteOrder();
    for (const QString& position : qAsConst(m_trainingNotes)) {
        const QString stem = NoteSpelling::positionStem(position);
        m_overlayMap.insert(QStringLiteral(":/Guitar_%1.png").arg(stem),
            QStringLiteral(":/Guitar_") + stem + QStringLiteral("@2x.png"));
    }

    const BoardModeSwitch modeSwitch(this, QString(), QString());
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());
    texts->setText(modeSwitch.findNoteButton(), QT_TR_NOOP("Find Note"));
    texts->setText(modeSwitch.trainingButton(), QT_TR_NOOP("Training"));
    m_trainingButton = modeSwitch.trainingButton();
    connect(m_trainingButton, &QPushButton::clicked, this, &GuitarBoard::traningSelected);
    connect(modeSwitch.findNoteButton(), &QPushButton::clicked, this, &GuitarBoard::findNoteSelected);
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
    m_trainingButton->setChecked(true);
}

bool GuitarBoard::isInTraining() const
{
    return m_inTraining;
}

QString GuitarBoard::currentNote() const
{
    return m_currentNote;
}

const QMap<QString, QString>& GuitarBoard::overlayMap() const
{
    return m_overlayMap;
}

const QVector<QString>& GuitarBoard::trainingNotes() const
{
    return m_trainingNotes;
}

void GuitarBoard::slotSetNote(const QString& name, int accidental)
{
    m_currentNote = NoteSpelling::stem(name, accidental);
    update();
}

void GuitarBoard::slotNextNote()
{
    if (m_trainingNotes.isEmpty())
        return;
    const QString position = TrainingDraw::pick(m_trainingNotes);
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    slotSetNote(name, sharp);
    emit noteChanged(name, sharp);
}

void GuitarBoard::slotSetInTraining(bool inTraining)
{
    m_inTraining = inTraining;
    update();
}

void GuitarBoard::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_layers.drawBackground(painter, rect());
    if (m_currentNote.isEmpty())
        return;
    const QString file = m_overlayMap[QStringLiteral(":/Guitar_%1.png").arg(m_currentNote)];
    if (m_inTraining)
        BoardLayers::drawScaled(painter, rect(), doSingleNote(m_layers.overlay(file)));
    else
        m_layers.drawOverlay(painter, rect(), file);
}

void GuitarBoard::mousePressEvent(QMouseEvent* event)
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
    NoteSamples::play(QStringLiteral("Guitar"), NoteSpelling::positionStem(position));
}

void GuitarBoard::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    const int height = m_layers.heightForWidth(width());
    if (height > 0)
        setFixedHeight(height);
}

} // namespace QMMusic
