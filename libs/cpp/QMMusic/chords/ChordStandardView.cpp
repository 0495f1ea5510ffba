#include "ChordStandardView.h"

#include "ChordDiagram.h"

#include <QPainter>

namespace QMMusic {

ChordStandardView::ChordStandardView(QWidget* parent)
    : ChordBaseView(parent)
{
}

void ChordStandardView::paintEvent(QPaintEvent* event)
{
    ChordBaseView::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (instrumentName() == QLatin1String("piano"))
        drawKeys(&painter);
    else
        drawStrings(&painter);
}

void ChordStandardView::drawStrings(QPainter* painter)
{
    const ChordDiagram d = ChordDiagram::neck(size(), instrumentName(), chordTab());
    QFont font = painter->font();
    font.setPixelSize(d.headingPixelSize);
    painter->setFont(font);
    painter->setPen(QPen(Qt::black, d.penWidth));
    painter->drawText(QRect(0, 0, width() - 1, height() - 1), Qt::AlignHCenter, chordName());

    font.setPixelSize(d.textPixelSize);
    painter->setFont(font);
    painter->drawLines(d.strings);
    painter->drawLines(d.bars);
    for (const ChordDiagram::Text& text : d.texts)
        painter->drawText(text.at, text.text);
    for (const ChordDiagram::Mark& mark : d.marks) {
        painter->save();
        switch (mark.kind) {
        case ChordDiagram::Mark::Dot:
            painter->setBrush(Qt::black);
            painter->drawEllipse(mark.rect);
            break;
        case ChordDiagram::Mark::Open:
            painter->drawEllipse(mark.rect);
            break;
        case ChordDiagram::Mark::Cross:
            painter->drawLine(mark.rect.topLeft(), mark.rect.bottomRight());
            painter->drawLine(mark.rect.bottomLeft(), mark.rect.topRight());
            break;
        }
        painter->restore();
    }
    if (!d.nut.isNull()) {
        painter->setPen(QPen(Qt::black, d.nutWidth));
        painter->drawLine(d.nut);
    }
}

void ChordStandardView::drawKeys(QPainter* painter)
{
    drawKeyboard(painter, false);
}

} // namespace QMMusic
