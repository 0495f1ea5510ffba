#include "ChordPhotoView.h"

#include "App.h"
#include "ChordPictures.h"

#include <QPainter>

namespace QMMusic {

ChordPhotoView::ChordPhotoView(QWidget* parent)
    : ChordBaseView(parent)
{
}

void ChordPhotoView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    const QMWidgets::App* app = QMWidgets::App::theApp();
    if (app && app->isPocketDevice())
        painter.setBrush(QBrush(QPixmap(QStringLiteral(":/panelbackground.png"))));
    else
        painter.setBrush(QColor(71, 71, 71));
    painter.drawRect(rect());
    drawCentredPicture(&painter, ChordPictures::photoName(instrumentName(), chordTab()));
}

} // namespace QMMusic
