#include "PianoBoard.h"

#include "AudioPoolPlayer.h"
#include "NoteSamples.h"
#include "NoteSpelling.h"
#include "PianoKeyMap.h"

#include <QMouseEvent>
#include <QPainter>

namespace QMMusic {

PianoBoard::PianoBoard(QWidget* parent)
    : QFrame(parent)
    , m_layers(QStringLiteral(":/Piano_0@2x.jpg"))
{
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);
    // The keyboard has no @2x overlays: key and picture are the same name.
    for (int key = 1; key <= PianoKeyMap::KeyCount; ++key) {
        const QString file = QStringLiteral(":/Piano_%1.png").arg(key);
        m_overlayMap.insert(file, file);
    }
    setMinimumSize(800, 194);
}

QString PianoBoard::positionToNote(int x, int y) const
{
    return PianoKeyMap::noteAt(x, y, width(), height());
}

QString PianoBoard::currentNote() const
{
    return m_currentNote;
}

const QMap<QString, QString>& PianoBoard::overlayMap() const
{
    return m_overlayMap;
}

void PianoBoard::slotSetNote(const QString& name, int accidental)
{
    m_currentNote = QString::number(PianoKeyMap::keyNumber(name, accidental));
    update();
}

void PianoBoard::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_layers.drawBackground(painter, rect());
    if (!m_currentNote.isEmpty())
        m_layers.drawOverlay(painter, rect(), m_overlayMap.value(QStringLiteral(":/Piano_%1.png").arg(m_currentNote)));
}

void PianoBoard::mousePressEvent(QMouseEvent* event)
{
    const QString position = positionToNote(event->pos().x(), event->pos().y());
    if (position.isEmpty())
        return;
    const QString name = NoteSpelling::positionNoteName(position);
    const int sharp = NoteSpelling::positionAccidental(position);
    slotSetNote(name, sharp);
    emit noteChanged(name, sharp);
    NoteSamples::play(QStringLiteral("Piano"), NoteSpelling::positionStem(position));
}

void PianoBoard::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    const int height = m_layers.heightForWidth(width());
    if (height > 0)
        setFixedHeight(height);
}

} // namespace QMMusic
