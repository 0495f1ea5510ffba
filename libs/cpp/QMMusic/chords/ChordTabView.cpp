#include "ChordTabView.h"

#include "ChordDiagram.h"

#include <QPainter>

namespace QMMusic {

ChordTabView::ChordTabView(QWidget* parent)
    : ChordBaseView(parent)
{
}

void ChordTabView::paintEvent(QPaintEvent* event)
{
    ChordBaseView::paintEvent(event);
    QPainter painter(this);
    if (instrumentName() == QLatin1String("piano"))
        drawKeys(&painter);
    else
        drawStrings(&painter);
}

void ChordTabView::drawStrings(QPainter* painter)
{
    const ChordDiagram d = ChordDiagram::tablature(size(), chordTab());
    QFont font = painter->font();
    font.setPixelSize(d.headingPixelSize);
    painter->setFont(font);
    painter->setPen(QPen(Qt::black, d.penWidth));
    painter->drawText(QRect(0, 0, width() - 1, height() - 1), Qt::AlignHCenter, chordName());

    font.setPixelSize(d.tabLettersPixelSize);
    painter->setFont(font);
    painter->drawText(d.tabLetters, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("T\nA\nB"));
    font.setPixelSize(d.textPixelSize);
    painter->setFont(font);
    painter->drawLines(d.strings);
    for (const ChordDiagram::Text& text : d.texts)
        painter->drawText(text.at, text.text);
    painter->drawLines(d.bars);
}

void ChordTabView::drawKeys(QPainter* painter)
{
    drawKeyboard(painter, true);
}

} // namespace QMMusic
