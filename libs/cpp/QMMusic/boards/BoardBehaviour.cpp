#include "BoardBehaviour.h"

#include "AudioPoolPlayer.h"
#include "BoardModeSwitch.h"
#include "NoteSamples.h"
#include "NoteSpelling.h"
#include "TrainingDraw.h"
#include "TranslatedTexts.h"

#include <QFrame>
#include <QPainter>
#include <QPushButton>

namespace QMMusic {

BoardBehaviour::BoardBehaviour(QFrame* board, const QString& instrumentKey, HitTest hitTest, NoteChanged noteChanged)
    : m_board(board)
    , m_instrumentKey(instrumentKey)
    , m_hitTest(std::move(hitTest))
    , m_noteChanged(std::move(noteChanged))
    , m_layers(QStringLiteral(":/") + instrumentKey + QStringLiteral("_0@2x.jpg"))
{
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);
    const BoardModeSwitch modeSwitch(board, QString(), QString());
    m_findNoteButton = modeSwitch.findNoteButton();
    m_trainingButton = modeSwitch.trainingButton();
    auto* texts = new QMWidgets::TranslatedTexts(board, "QMMusic::BoardBehaviour");
    texts->setText(m_findNoteButton, QT_TRANSLATE_NOOP("QMMusic::BoardBehaviour", "Find Note"));
    texts->setText(m_trainingButton, QT_TRANSLATE_NOOP("QMMusic::BoardBehaviour", "Training"));
}

void BoardBehaviour::setNotes(const QList<QString>& fileStems, const QVector<QString>& trainingNotes)
{
    for (const QString& stem : fileStems) {
        m_overlayMap.insert(overlayKey(stem),
            QStringLiteral(":/") + m_instrumentKey + QStringLiteral("_") + stem + QStringLiteral("@2x.png"));
    }
    m_trainingNotes = trainingNotes;
}

QPushButton* BoardBehaviour::findNoteButton() const
{
    return m_findNoteButton;
}

QPushButton* BoardBehaviour::trainingButton() const
{
    return m_trainingButton;
}

QString BoardBehaviour::instrumentKey() const
{
    return m_instrumentKey;
}

QString BoardBehaviour::currentNote() const
{
    return m_currentNote;
}

bool BoardBehaviour::isInTraining() const
{
    return m_inTraining;
}

const QMap<QString, QString>& BoardBehaviour::overlayMap() const
{
    return m_overlayMap;
}

const QVector<QString>& BoardBehaviour::trainingNotes() const
{
    return m_trainingNotes;
}

void BoardBehaviour::setNote(const QString& name, int accidental)
{
    m_currentNote = NoteSpelling::stem(name, accidental);
    m_board->update();
}

void BoardBehaviour::nextNote()
{
    if (m_trainingNotes.isEmpty())
        return;
    const QString position = TrainingDraw::pick(m_trainingNotes);
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    setNote(name, sharp);
    m_noteChanged(name, sharp);
}

void BoardBehaviour::setInTraining(bool inTraining)
{
    m_inTraining = inTraining;
    m_board->update();
}

bool BoardBehaviour::press(const QPoint& point)
{
    if (m_inTraining)
        return false;
    const QString position = m_hitTest(point.x(), point.y());
    if (position.isEmpty())
        return true;
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    setNote(name, sharp);
    m_noteChanged(name, sharp);
    NoteSamples::play(m_instrumentKey, NoteSpelling::positionStem(position));
    return true;
}

void BoardBehaviour::fitHeight()
{
    const int height = m_layers.heightForWidth(m_board->width());
    if (height > 0)
        m_board->setFixedHeight(height);
}

void BoardBehaviour::paint(QPainter& painter, const std::function<QPixmap(const QPixmap&)>& singleNote)
{
    const QRect target = m_board->rect();
    m_layers.drawBackground(painter, target);
    if (m_currentNote.isEmpty())
        return;
    const QString file = m_overlayMap.value(overlayKey(m_currentNote));
    if (m_inTraining)
        BoardLayers::drawScaled(painter, target, singleNote(m_layers.overlay(file)));
    else
        m_layers.drawOverlay(painter, target, file);
}

QString BoardBehaviour::overlayKey(const QString& stem) const
{
    return QStringLiteral(":/") + m_instrumentKey + QStringLiteral("_%1.png").arg(stem);
}

} // namespace QMMusic
