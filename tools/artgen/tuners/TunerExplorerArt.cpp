#include "TunerExplorerArt.h"

#include "ArtWriter.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

namespace {

const QString kGroup = QStringLiteral("Tuners");
const QColor kCopper(192, 122, 58);
const QColor kGlow(255, 200, 70);

// The drawn part of a transparent picture.
QRect opaqueBounds(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    int left = argb.width(), right = -1, top = argb.height(), bottom = -1;
    for (int y = 0; y < argb.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(line[x]) > 24) {
                left = qMin(left, x);
                right = qMax(right, x);
                top = qMin(top, y);
                bottom = qMax(bottom, y);
            }
        }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

// Lightens every pixel, alpha kept, for the hovered look.
QImage brightened(const QImage& image, double factor)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb p = line[x];
            const int a = qAlpha(p);
            line[x] = qRgba(
                qMin(a, int(qRed(p) * factor)), qMin(a, int(qGreen(p) * factor)), qMin(a, int(qBlue(p) * factor)), a);
        }
    }
    return result;
}

// Three by three small tiles, the programs beside the tuners.
void paintAppsGrid(QPainter& painter, const QRectF& area, bool hover)
{
    const QColor colours[] = { QColor(196, 120, 56), QColor(232, 186, 110), QColor(150, 70, 40), QColor(232, 186, 110),
        QColor(240, 226, 196), QColor(196, 120, 56), QColor(150, 70, 40), QColor(196, 120, 56), QColor(232, 186, 110) };
    const double cell = area.width() / 3;
    for (int i = 0; i < 9; ++i) {
        const QRectF box(area.left() + (i % 3) * cell + cell * 0.1, area.top() + (i / 3) * cell + cell * 0.1,
            cell * 0.8, cell * 0.8);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 120));
        painter.drawRoundedRect(box.translated(cell * 0.04, cell * 0.06), cell * 0.18, cell * 0.18);
        QLinearGradient face(box.topLeft(), box.bottomLeft());
        const QColor colour = hover ? colours[i].lighter(120) : colours[i];
        face.setColorAt(0.0, colour.lighter(125));
        face.setColorAt(1.0, colour.darker(135));
        painter.setBrush(face);
        painter.drawRoundedRect(box, cell * 0.18, cell * 0.18);
    }
}

} // namespace

QString TunerExplorerArt::pictureName(const QString& button, Look look)
{
    switch (look) {
    case Look::Plain:
        return button;
    case Look::Hover:
        return button + QStringLiteral("_hvr");
    case Look::Pressed:
        return button + QStringLiteral("_pressed");
    case Look::PressedHover:
        return button + QStringLiteral("_pressed_hvr");
    }
    return button;
}

QImage TunerExplorerArt::tile(const QImage& instrument, Look look, int scale)
{
    const bool hover = look == Look::Hover || look == Look::PressedHover;
    const bool pressed = look == Look::Pressed || look == Look::PressedHover;
    QImage image(ButtonSize * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);

    const QRectF box(5, 5, ButtonSize.width() - 10, ButtonSize.height() - 10);
    const double radius = 14;
    if (pressed) {
        // The warm glow around the rim.
        for (int i = 5; i >= 1; --i) {
            painter.setPen(QPen(QColor(kGlow.red(), kGlow.green(), kGlow.blue(), 26 + (5 - i) * 10), i * 1.6));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(box, radius, radius);
        }
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 110));
        painter.drawRoundedRect(box.translated(1.5, 2.5), radius, radius);
    }
    QLinearGradient face(box.topLeft(), box.bottomLeft());
    if (pressed) {
        // Pushed in: darker at the top, as if shaded by the rim.
        face.setColorAt(0.0, hover ? QColor(40, 28, 18) : QColor(28, 19, 12));
        face.setColorAt(1.0, hover ? QColor(92, 66, 42) : QColor(70, 50, 32));
    } else {
        face.setColorAt(0.0, hover ? QColor(112, 84, 58) : QColor(78, 57, 40));
        face.setColorAt(1.0, hover ? QColor(54, 39, 28) : QColor(32, 23, 16));
    }
    painter.setPen(QPen(pressed ? kGlow : (hover ? kCopper.lighter(130) : kCopper), pressed ? 2.4 : 1.4));
    painter.setBrush(face);
    painter.drawRoundedRect(box, radius, radius);

    const QRectF inner = box.adjusted(7, 7, -7, -7);
    if (instrument.isNull()) {
        paintAppsGrid(painter, inner.adjusted(4, 4, -4, -4), hover);
    } else {
        // The instrument across the tile, its head to the upper right.
        const QRect drawn = opaqueBounds(instrument);
        const QImage cut = instrument.copy(drawn);
        const double angle = 38.0;
        const double c = std::cos(qDegreesToRadians(angle));
        const double s = std::sin(qDegreesToRadians(angle));
        const double w = cut.width();
        const double h = cut.height();
        const double fit = qMin(inner.width() / (w * c + h * s), inner.height() / (w * s + h * c));
        const QSize size(qMax(1, int(w * fit * scale * 1.2)), qMax(1, int(h * fit * scale * 1.2)));
        QImage small = cut.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (hover)
            small = brightened(small, 1.25);
        painter.save();
        painter.setClipPath([&] {
            QPainterPath clip;
            clip.addRoundedRect(box.adjusted(1, 1, -1, -1), radius, radius);
            return clip;
        }());
        painter.translate(inner.center());
        painter.rotate(angle);
        const QRectF target(-small.width() / 2.0 / scale, -small.height() / 2.0 / scale, small.width() / double(scale),
            small.height() / double(scale));
        painter.setOpacity(0.55);
        painter.drawImage(target.translated(1.2, 1.8), [&] {
            QImage shadow = small;
            QPainter shade(&shadow);
            shade.setCompositionMode(QPainter::CompositionMode_SourceIn);
            shade.fillRect(shadow.rect(), Qt::black);
            return shadow;
        }());
        painter.setOpacity(1.0);
        painter.drawImage(target, small);
        painter.restore();
    }
    // The gloss of the tile's upper half.
    QPainterPath upper;
    upper.addRoundedRect(box.adjusted(1.5, 1.5, -1.5, -box.height() * 0.5), radius - 1.5, radius - 1.5);
    QLinearGradient gloss(box.topLeft(), QPointF(box.left(), box.center().y()));
    gloss.setColorAt(0.0, QColor(255, 244, 224, pressed ? 18 : 46));
    gloss.setColorAt(1.0, QColor(255, 244, 224, 0));
    painter.fillPath(upper, gloss);
    painter.end();
    return image;
}

QImage TunerExplorerArt::background(int scale)
{
    // Periodic lattice noise, so that the tiles meet without a seam.
    const int period = 8;
    auto noise = [&](double x, double y, int seed, int wrap) {
        const int xi = int(std::floor(x));
        const int yi = int(std::floor(y));
        const double fx = x - xi;
        const double fy = y - yi;
        const double ux = fx * fx * (3 - 2 * fx);
        const double uy = fy * fy * (3 - 2 * fy);
        auto at
            = [&](int i, int j) { return WoodArt::hash(((i % wrap) + wrap) % wrap, ((j % wrap) + wrap) % wrap, seed); };
        const double top = at(xi, yi) + (at(xi + 1, yi) - at(xi, yi)) * ux;
        const double bottom = at(xi, yi + 1) + (at(xi + 1, yi + 1) - at(xi, yi + 1)) * ux;
        return top + (bottom - top) * uy;
    };
    const QSize size = BackgroundSize * scale;
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double u = double(x) / size.width();
            const double v = double(y) / size.height();
            // Broad clouds, a fine vertical brush and a speckle.
            const double cloud = 0.6 * noise(u * period, v * period, 5, period)
                + 0.4 * noise(u * period * 2, v * period * 2, 6, period * 2);
            const double brush = noise(u * period * 16, v * period * 2, 7, period * 16);
            const double speck = noise(u * period * 32, v * period * 32, 8, period * 32);
            const double light = 0.8 + 0.3 * cloud + 0.12 * brush + (speck > 0.85 ? 0.1 : 0.0);
            line[x] = WoodArt::mix(QColor(22, 16, 12), QColor(40, 29, 21), cloud, light);
        }
    }
    return image;
}

void TunerExplorerArt::generate(ArtWriter& writer, const QMap<QString, QImage>& instruments)
{
    const Look looks[] = { Look::Plain, Look::Hover, Look::Pressed, Look::PressedHover };
    QMap<QString, QImage> buttons;
    for (auto instrument = instruments.cbegin(); instrument != instruments.cend(); ++instrument)
        buttons.insert(
            instrument.key() + QStringLiteral("Button"), instrument.value().copy(opaqueBounds(instrument.value())));
    buttons.insert(otherAppsButton(), QImage());
    for (auto button = buttons.cbegin(); button != buttons.cend(); ++button) {
        for (Look look : looks) {
            const QString name = pictureName(button.key(), look);
            writer.addPicture(name + QStringLiteral(".png"), tile(button.value(), look, 1), -1, kGroup);
            writer.addPicture(name + QStringLiteral("@2x.png"), tile(button.value(), look, 2), -1, kGroup);
        }
    }
    // The style sheet names the cello's plain tile by this path.
    const QImage cello = buttons.value(QStringLiteral("CelloButton"));
    writer.addPicture(QStringLiteral("_resources/imgs/CelloButton.png"), tile(cello, Look::Plain, 1), -1, kGroup);
    writer.addPicture(QStringLiteral("_resources/imgs/CelloButton@2x.png"), tile(cello, Look::Plain, 2), -1, kGroup);
    writer.addPicture(QStringLiteral("background.png"), background(1), -1, kGroup);
    writer.addPicture(QStringLiteral("background@2x.png"), background(2), -1, kGroup);
}
