#include "PianoArt.h"

#include "ArtWriter.h"
#include "BoardPicture.h"
#include "PianoKeyMap.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

using BoardPicture::toPicture;
using QMMusic::PianoKeyMap;

namespace {

// The light of a lit key: the blue of the fretboards' marks.
const QColor kLitColour(64, 200, 224, 150);

QRectF pictureRect(double left, double top, double right, double bottom)
{
    return QRectF(toPicture(left, top), toPicture(right, bottom));
}

// The face of a white key: its narrow upper part and its wide lower part.
QPainterPath whiteKey(const QString& position)
{
    QPainterPath path;
    for (const PianoKeyMap::Interval& upper : PianoKeyMap::upperWhiteKeys()) {
        if (upper.position == position)
            path.addRect(pictureRect(upper.low, PianoKeyMap::UpperTop, upper.high, PianoKeyMap::LowerTop + 2.0));
    }
    for (const PianoKeyMap::Interval& lower : PianoKeyMap::lowerWhiteKeys()) {
        if (lower.position == position)
            path.addRect(pictureRect(lower.low, PianoKeyMap::LowerTop, lower.high, PianoKeyMap::LowerBottom));
    }
    return path.simplified();
}

QRectF blackKey(const PianoKeyMap::Interval& interval)
{
    return pictureRect(interval.low, PianoKeyMap::UpperTop, interval.high, PianoKeyMap::LowerTop);
}

void drawCase(QPainter& painter)
{
    const QSize size = BoardPicture::LargeSize;
    // Lacquered black case, a mirror-like band of light across the fallboard.
    QLinearGradient lacquer(0, 0, 0, toPicture(0, PianoKeyMap::UpperTop).y());
    lacquer.setColorAt(0.0, QColor(6, 6, 8));
    lacquer.setColorAt(0.55, QColor(34, 34, 40));
    lacquer.setColorAt(0.7, QColor(12, 12, 14));
    lacquer.setColorAt(1.0, QColor(4, 4, 5));
    painter.fillRect(QRect(QPoint(0, 0), size), lacquer);
    // The cheeks at both ends of the keyboard.
    for (const QRectF& cheek : { pictureRect(0, 40, 18, 150), pictureRect(792, 40, 800, 150) }) {
        QLinearGradient side(cheek.topLeft(), cheek.topRight());
        side.setColorAt(0.0, QColor(10, 10, 12));
        side.setColorAt(0.5, QColor(46, 46, 52));
        side.setColorAt(1.0, QColor(8, 8, 10));
        painter.fillRect(cheek, side);
    }
    // The red felt along the back of the keys.
    const QRectF felt = pictureRect(18, PianoKeyMap::UpperTop - 3.2, 792, PianoKeyMap::UpperTop);
    painter.fillRect(felt, QColor(128, 18, 24));
    for (int i = 0; i < 900; ++i) {
        const QPointF at(
            felt.left() + WoodArt::hash(i, 1, 5) * felt.width(), felt.top() + WoodArt::hash(i, 2, 5) * felt.height());
        painter.fillRect(QRectF(at, QSizeF(2, 1.2)), QColor(170, 40, 46, 90));
    }
    // The key slip below the keys, and the keys' shadow on it.
    const QRectF slip = pictureRect(0, PianoKeyMap::LowerBottom, 800, 194);
    QLinearGradient front(slip.topLeft(), slip.bottomLeft());
    front.setColorAt(0.0, QColor(2, 2, 3));
    front.setColorAt(0.12, QColor(40, 40, 46));
    front.setColorAt(0.3, QColor(14, 14, 16));
    front.setColorAt(1.0, QColor(6, 6, 7));
    painter.fillRect(slip, front);
}

void drawWhiteKeys(QPainter& painter)
{
    for (const PianoKeyMap::Interval& lower : PianoKeyMap::lowerWhiteKeys()) {
        const QPainterPath face = whiteKey(lower.position);
        // Ivory, a little darker towards the back where the case shades it.
        QLinearGradient ivory(
            0, toPicture(0, PianoKeyMap::UpperTop).y(), 0, toPicture(0, PianoKeyMap::LowerBottom).y());
        ivory.setColorAt(0.0, QColor(214, 208, 192));
        ivory.setColorAt(0.25, QColor(246, 243, 232));
        ivory.setColorAt(0.92, QColor(252, 250, 242));
        ivory.setColorAt(1.0, QColor(206, 200, 186));
        painter.setPen(QPen(QColor(120, 114, 104), 1.6));
        painter.setBrush(ivory);
        painter.drawPath(face);
    }
}

void drawBlackKeys(QPainter& painter)
{
    for (const PianoKeyMap::Interval& interval : PianoKeyMap::blackKeys()) {
        const QRectF key = blackKey(interval);
        // The key's shadow on the white keys to its right and in front.
        painter.fillRect(key.translated(4, 5), QColor(0, 0, 0, 70));
        QLinearGradient ebony(key.topLeft(), key.bottomLeft());
        ebony.setColorAt(0.0, QColor(8, 8, 9));
        ebony.setColorAt(0.8, QColor(30, 30, 34));
        ebony.setColorAt(1.0, QColor(58, 58, 64));
        painter.setPen(QPen(QColor(0, 0, 0), 1.2));
        painter.setBrush(ebony);
        painter.drawRect(key);
        // The highlight along the key's top face.
        const QRectF shine(key.left() + key.width() * 0.22, key.top() + 4, key.width() * 0.2, key.height() * 0.78);
        QLinearGradient light(shine.topLeft(), shine.bottomLeft());
        light.setColorAt(0.0, QColor(255, 255, 255, 20));
        light.setColorAt(1.0, QColor(255, 255, 255, 70));
        painter.fillRect(shine, light);
    }
}

} // namespace

QImage PianoArt::drawKeyboard()
{
    QImage image(BoardPicture::LargeSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawCase(painter);
    drawWhiteKeys(painter);
    drawBlackKeys(painter);
    painter.end();
    return image;
}

QImage PianoArt::drawOverlay(int key)
{
    QImage image(BoardPicture::LargeSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QString position = PianoKeyMap::positionName(key);
    painter.setPen(QPen(kLitColour.darker(130), 3));
    painter.setBrush(kLitColour);
    if (position.endsWith(QLatin1Char('#'))) {
        for (const PianoKeyMap::Interval& interval : PianoKeyMap::blackKeys()) {
            if (interval.position == position)
                painter.drawRect(blackKey(interval));
        }
    } else {
        painter.drawPath(whiteKey(position));
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

void PianoArt::generate(ArtWriter& writer)
{
    const QString group = QStringLiteral("Piano");
    const QImage keyboard = drawKeyboard();
    writer.addPicture(QStringLiteral("Piano_0@2x.jpg"), keyboard, 92, group);
    writer.addPicture(QStringLiteral("Piano_0.jpg"),
        keyboard.scaled(BoardPicture::SmallSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), 92, group);
    for (int key = 1; key <= PianoKeyMap::KeyCount; ++key)
        writer.addPicture(QStringLiteral("Piano_%1.png").arg(key), drawOverlay(key), -1, group);
}
