#include "MetronomeArt.h"

#include "ArtWriter.h"
#include "WoodArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cmath>

namespace {

// Twice the logical size of the metronome's picture: upright, so that it
// fills the window's height, with the character in its upper half and the
// plain ground below for the controls.
const QSize kSize(900, 1200);
const QPointF kCentre(600, 470);

QPainterPath bodyPath()
{
    // A tapering case with a rounded top, standing on a wider foot.
    QPainterPath body;
    body.moveTo(kCentre + QPointF(-250, 330));
    body.lineTo(kCentre + QPointF(-150, -300));
    body.quadTo(kCentre + QPointF(0, -360), kCentre + QPointF(150, -300));
    body.lineTo(kCentre + QPointF(250, 330));
    body.closeSubpath();
    return body;
}

void drawBody(QPainter& p)
{
    const QPainterPath body = bodyPath();
    p.save();
    p.translate(10, 16);
    p.fillPath(body, QColor(0, 0, 0, 110));
    p.restore();
    p.save();
    p.setClipPath(body);
    p.translate(kCentre.x() - 260, kCentre.y() - 360);
    p.rotate(0);
    p.drawImage(0, 0, WoodArt::woodTexture(QSize(520, 700), QColor(120, 58, 24), QColor(198, 120, 62), 33));
    p.restore();
    // Polish: light from the upper left, shade on the right.
    QLinearGradient gloss(kCentre + QPointF(-250, 0), kCentre + QPointF(250, 0));
    gloss.setColorAt(0.0, QColor(255, 255, 255, 60));
    gloss.setColorAt(0.35, QColor(255, 255, 255, 12));
    gloss.setColorAt(1.0, QColor(0, 0, 0, 90));
    p.fillPath(body, gloss);
    p.setPen(QPen(QColor(70, 32, 12), 6));
    p.setBrush(Qt::NoBrush);
    p.drawPath(body);
    // The brass foot and the scale plate where the pendulum swings.
    QLinearGradient brass(kCentre + QPointF(0, 330), kCentre + QPointF(0, 370));
    brass.setColorAt(0.0, QColor(250, 220, 140));
    brass.setColorAt(1.0, QColor(150, 110, 40));
    p.setPen(Qt::NoPen);
    p.setBrush(brass);
    p.drawRoundedRect(QRectF(kCentre + QPointF(-290, 320), QSizeF(580, 50)), 18, 18);
    const QRectF plate(kCentre + QPointF(-46, 40), QSizeF(92, 250));
    QLinearGradient cream(plate.topLeft(), plate.topRight());
    cream.setColorAt(0.0, QColor(236, 224, 196));
    cream.setColorAt(1.0, QColor(206, 190, 156));
    p.setBrush(cream);
    p.drawRoundedRect(plate, 14, 14);
    p.setPen(QPen(QColor(120, 90, 60), 3));
    for (int i = 0; i < 9; ++i) {
        const double y = plate.top() + 24 + i * 26;
        p.drawLine(QPointF(plate.center().x() - 18, y), QPointF(plate.center().x() + 18, y));
    }
    // The pendulum rod with its weight.
    p.setPen(QPen(QColor(200, 200, 208), 8, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(kCentre + QPointF(0, 300), kCentre + QPointF(0, 10));
    QRadialGradient weight(kCentre + QPointF(-6, 120), 36);
    weight.setColorAt(0.0, QColor(255, 240, 190));
    weight.setColorAt(1.0, QColor(160, 120, 40));
    p.setPen(Qt::NoPen);
    p.setBrush(weight);
    p.drawRoundedRect(QRectF(kCentre + QPointF(-30, 104), QSizeF(60, 40)), 10, 10);
}

void drawEye(QPainter& p, const QPointF& centre, MetronomeArt::Eyes eyes)
{
    const double rx = 58;
    const double ry = 70;
    if (eyes == MetronomeArt::Eyes::Beat) {
        // Squeezed shut with joy: an upward arc.
        p.setPen(QPen(QColor(40, 20, 10), 14, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(centre.x() - rx, centre.y() - 20, 2 * rx, 70), 20 * 16, 140 * 16);
        return;
    }
    if (eyes == MetronomeArt::Eyes::Closed) {
        // Asleep: a downward arc with lashes.
        p.setPen(QPen(QColor(40, 20, 10), 12, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(centre.x() - rx, centre.y() - 50, 2 * rx, 70), 200 * 16, 140 * 16);
        for (int i = -1; i <= 1; ++i)
            p.drawLine(centre + QPointF(i * 30, 22), centre + QPointF(i * 38, 42));
        return;
    }
    QRadialGradient white(centre + QPointF(-14, -18), ry * 1.2);
    white.setColorAt(0.0, QColor(255, 255, 255));
    white.setColorAt(1.0, QColor(222, 222, 230));
    p.setPen(QPen(QColor(60, 30, 14), 6));
    p.setBrush(white);
    p.drawEllipse(centre, rx, ry);
    const double look = eyes == MetronomeArt::Eyes::Left ? -24 : 24;
    const QPointF pupil = centre + QPointF(look, 8);
    QRadialGradient iris(pupil, 34);
    iris.setColorAt(0.0, QColor(40, 120, 150));
    iris.setColorAt(0.7, QColor(20, 70, 100));
    iris.setColorAt(1.0, QColor(10, 30, 50));
    p.setPen(Qt::NoPen);
    p.setBrush(iris);
    p.drawEllipse(pupil, 32, 34);
    p.setBrush(QColor(8, 8, 12));
    p.drawEllipse(pupil, 16, 17);
    p.setBrush(QColor(255, 255, 255, 230));
    p.drawEllipse(pupil + QPointF(-10, -12), 8, 8);
}

void drawMouth(QPainter& p, MetronomeArt::Eyes eyes, bool muted)
{
    const QPointF mouth = kCentre + QPointF(0, -40);
    if (muted) {
        // A zipped mouth: a line with its teeth.
        p.setPen(QPen(QColor(50, 24, 10), 10, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(mouth + QPointF(-60, 0), mouth + QPointF(60, 0));
        p.setPen(QPen(QColor(220, 200, 160), 5, Qt::SolidLine, Qt::RoundCap));
        for (int i = -4; i <= 4; ++i)
            p.drawLine(mouth + QPointF(i * 13, -9), mouth + QPointF(i * 13, 9));
        return;
    }
    if (eyes == MetronomeArt::Eyes::Beat) {
        // Singing the bell.
        p.setPen(QPen(QColor(60, 20, 10), 6));
        p.setBrush(QColor(120, 30, 30));
        p.drawEllipse(mouth + QPointF(0, 6), 34, 40);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(230, 110, 110));
        p.drawEllipse(mouth + QPointF(0, 28), 20, 12);
        return;
    }
    QPainterPath smile;
    smile.moveTo(mouth + QPointF(-70, -10));
    smile.quadTo(mouth + QPointF(0, 50), mouth + QPointF(70, -10));
    p.setPen(QPen(QColor(60, 26, 10), 10, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(smile);
}

void drawSparkles(QPainter& p)
{
    // Little stars around the head on the first beat of a bar.
    for (const QPointF& at :
        { kCentre + QPointF(-300, -280), kCentre + QPointF(300, -300), kCentre + QPointF(340, -140) }) {
        QPainterPath star;
        for (int i = 0; i < 10; ++i) {
            const double radius = i % 2 ? 12 : 34;
            const double angle = -M_PI / 2 + i * M_PI / 5;
            const QPointF point = at + QPointF(std::cos(angle) * radius, std::sin(angle) * radius);
            if (i == 0)
                star.moveTo(point);
            else
                star.lineTo(point);
        }
        star.closeSubpath();
        p.setPen(QPen(QColor(200, 140, 30), 3));
        p.setBrush(QColor(255, 214, 90));
        p.drawPath(star);
    }
}

void drawFace(QPainter& p, MetronomeArt::Eyes eyes, bool muted)
{
    drawBody(p);
    // Rosy cheeks.
    for (double side : { -1.0, 1.0 }) {
        QRadialGradient cheek(kCentre + QPointF(side * 118, -60), 46);
        cheek.setColorAt(0.0, QColor(240, 120, 110, 150));
        cheek.setColorAt(1.0, QColor(240, 120, 110, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(cheek);
        p.drawEllipse(kCentre + QPointF(side * 118, -60), 46, 46);
    }
    drawEye(p, kCentre + QPointF(-80, -170), eyes);
    drawEye(p, kCentre + QPointF(80, -170), eyes);
    drawMouth(p, eyes, muted);
    if (eyes == MetronomeArt::Eyes::Beat)
        drawSparkles(p);
}

// An icon of the buttons: an eye or a speaker, crossed out when off.
QImage buttonIcon(bool eye, bool off)
{
    QImage image(QSize(96, 96), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor ink(238, 214, 170);
    p.setPen(QPen(ink, 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    if (eye) {
        QPainterPath lid;
        lid.moveTo(12, 48);
        lid.quadTo(48, 12, 84, 48);
        lid.quadTo(48, 84, 12, 48);
        p.drawPath(lid);
        p.setBrush(ink);
        p.drawEllipse(QPointF(48, 48), 11, 11);
    } else {
        QPainterPath speaker;
        speaker.moveTo(14, 38);
        speaker.lineTo(30, 38);
        speaker.lineTo(50, 20);
        speaker.lineTo(50, 76);
        speaker.lineTo(30, 58);
        speaker.lineTo(14, 58);
        speaker.closeSubpath();
        p.setBrush(ink);
        p.drawPath(speaker);
        p.setBrush(Qt::NoBrush);
        if (!off) {
            p.drawArc(QRectF(44, 30, 28, 36), -50 * 16, 100 * 16);
            p.drawArc(QRectF(42, 18, 44, 60), -50 * 16, 100 * 16);
        }
    }
    if (off) {
        p.setPen(QPen(QColor(230, 90, 70), 8, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(16, 82), QPointF(82, 14));
    }
    p.end();
    return image;
}

// The plus and minus of the tempo buttons.
QImage signIcon(bool plus)
{
    QImage image(QSize(96, 96), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient copper(QPointF(38, 34), 60);
    copper.setColorAt(0.0, QColor(236, 160, 100));
    copper.setColorAt(1.0, QColor(130, 62, 28));
    p.setPen(QPen(QColor(250, 220, 180, 160), 2));
    p.setBrush(copper);
    p.drawEllipse(QPointF(48, 48), 42, 42);
    p.setPen(QPen(QColor(255, 246, 230), 9, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(28, 48), QPointF(68, 48));
    if (plus)
        p.drawLine(QPointF(48, 28), QPointF(48, 68));
    p.end();
    return image;
}

QImage faceImage(MetronomeArt::Eyes eyes, bool muted, bool withStage)
{
    QImage image(kSize, withStage ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    if (withStage) {
        WoodArt::drawBackdrop(p, kSize);
        QRadialGradient spot(QPointF(450, 400), 480);
        spot.setColorAt(0.0, QColor(255, 220, 170, 80));
        spot.setColorAt(1.0, QColor(255, 220, 170, 0));
        p.fillRect(QRect(QPoint(0, 0), kSize), spot);
    }
    // The character stands in the upper half, above the controls.
    p.translate(450, 420);
    p.scale(0.7, 0.7);
    p.translate(-kCentre);
    drawFace(p, eyes, muted);
    p.end();
    return withStage ? image : image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

QImage MetronomeArt::face(Eyes eyes, bool muted)
{
    return faceImage(eyes, muted, false);
}

QImage MetronomeArt::base()
{
    return faceImage(Eyes::Left, false, true);
}

void MetronomeArt::generate(ArtWriter& writer)
{
    const QString group = QStringLiteral("Metronome");
    writer.addPicture(QStringLiteral("BaseEyesLeft@2x.jpg"), base(), 92, group);
    writer.addPicture(QStringLiteral("EyesRight@2x.png"), face(Eyes::Right, false), -1, group);
    writer.addPicture(QStringLiteral("Beat@2x.png"), face(Eyes::Beat, false), -1, group);
    writer.addPicture(QStringLiteral("MuteEyesLeft@2x.png"), face(Eyes::Left, true), -1, group);
    // This one's name has always stood without the "@".
    writer.addPicture(QStringLiteral("MuteEyesRight2x.png"), face(Eyes::Right, true), -1, group);
    writer.addPicture(QStringLiteral("MuteBeat@2x.png"), face(Eyes::Beat, true), -1, group);
    writer.addPicture(QStringLiteral("EyesClosed@2x.png"), face(Eyes::Closed, false), -1, group);
    writer.addPicture(QStringLiteral("EyesClosedMute@2x.png"), face(Eyes::Closed, true), -1, group);
    writer.addPicture(QStringLiteral("MetronomeVisibleOn.png"), buttonIcon(true, false), -1, group);
    writer.addPicture(QStringLiteral("MetronomeVisibleOff.png"), buttonIcon(true, true), -1, group);
    writer.addPicture(QStringLiteral("MetronomeAudibleOn.png"), buttonIcon(false, false), -1, group);
    writer.addPicture(QStringLiteral("MetronomeAudibleOff.png"), buttonIcon(false, true), -1, group);
    writer.addPicture(QStringLiteral("MetronomeTempoInc.png"), signIcon(true), -1, group);
    writer.addPicture(QStringLiteral("MetronomeTempoDec.png"), signIcon(false), -1, group);
}
