#include "TunerNeedle.h"

#include "TunerDialGeometry.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>

namespace QMMusic {

namespace {

const QColor s_walnutDark(70, 32, 12);
const QColor s_walnut(120, 58, 24);
const QColor s_copper(176, 98, 48);
const QColor s_creamLight(236, 224, 196);
const QColor s_cream(206, 190, 156);
const QColor s_ink(60, 34, 18);
const QColor s_green(40, 150, 60);

// The band between two shares of the radius, between two deviations.
QPainterPath band(const TunerDialGeometry& dial, double fromCents, double toCents, double inner, double outer)
{
    // Qt counts angles anticlockwise from three o'clock; the dial clockwise from twelve.
    const double start = 90.0 - TunerDialGeometry::angleForCents(fromCents);
    const double sweep = -(TunerDialGeometry::angleForCents(toCents) - TunerDialGeometry::angleForCents(fromCents));
    QPainterPath path;
    path.arcMoveTo(dial.arcRect(outer), start);
    path.arcTo(dial.arcRect(outer), start, sweep);
    path.arcTo(dial.arcRect(inner), start + sweep, -sweep);
    path.closeSubpath();
    return path;
}

QString readingText(double cents)
{
    const long rounded = std::lround(cents);
    if (rounded == 0)
        return QStringLiteral("0 \u00a2");
    return (rounded > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) + QString::number(std::labs(rounded))
        + QStringLiteral(" \u00a2");
}

} // namespace

TunerNeedle::TunerNeedle(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("TunerNeedle"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void TunerNeedle::setReading(const QString& stringName, double cents)
{
    // After a pause the needle goes straight to the new string; then it eases.
    m_shownCents = m_silent ? cents : TunerDialGeometry::eased(m_shownCents, cents);
    m_stringName = stringName;
    m_silent = false;
    update();
}

void TunerNeedle::setSilent()
{
    if (m_silent)
        return;
    m_silent = true;
    m_shownCents = 0.0;
    update();
}

bool TunerNeedle::isSilent() const
{
    return m_silent;
}

QString TunerNeedle::stringName() const
{
    return m_silent ? QString() : m_stringName;
}

double TunerNeedle::shownCents() const
{
    return m_shownCents;
}

QSize TunerNeedle::sizeHint() const
{
    return QSize(340, 170);
}

QSize TunerNeedle::minimumSizeHint() const
{
    return QSize(200, 100);
}

void TunerNeedle::resizeEvent(QResizeEvent* event)
{
    renderFace();
    QWidget::resizeEvent(event);
}

void TunerNeedle::renderFace()
{
    const qreal ratio = devicePixelRatioF();
    m_face = QPixmap(size() * ratio);
    m_face.setDevicePixelRatio(ratio);
    m_face.fill(Qt::transparent);
    const TunerDialGeometry dial(size());
    const QRectF face = dial.face();
    const double unit = face.height() / 100.0;

    QPainter p(&m_face);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient wood(face.topLeft(), face.bottomLeft());
    wood.setColorAt(0.0, s_walnut);
    wood.setColorAt(1.0, s_walnutDark);
    p.setPen(QPen(s_copper, 1.6 * unit));
    p.setBrush(wood);
    p.drawRoundedRect(face.adjusted(unit, unit, -unit, -unit), 8 * unit, 8 * unit);

    const QRectF plate = face.adjusted(6 * unit, 6 * unit, -6 * unit, -6 * unit);
    QLinearGradient cream(plate.topLeft(), plate.bottomLeft());
    cream.setColorAt(0.0, s_creamLight);
    cream.setColorAt(1.0, s_cream);
    p.setPen(QPen(s_walnutDark, 0.8 * unit));
    p.setBrush(cream);
    p.drawRoundedRect(plate, 5 * unit, 5 * unit);

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(s_green.red(), s_green.green(), s_green.blue(), 200));
    p.drawPath(band(dial, -TunerDialGeometry::InTuneCents, TunerDialGeometry::InTuneCents, 0.80, 0.98));

    for (int cents = -50; cents <= 50; cents += 5) {
        const bool major = cents % 25 == 0;
        p.setPen(QPen(s_ink, (major ? 1.2 : 0.7) * unit, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(dial.pointAt(cents, major ? 0.84 : 0.90), dial.pointAt(cents, 0.98));
    }
    QFont font = p.font();
    font.setPixelSize(qMax(6, int(7 * unit)));
    p.setFont(font);
    p.setPen(s_ink);
    for (int cents = -50; cents <= 50; cents += 25) {
        const QPointF at = dial.pointAt(cents, 0.74);
        const QString text = cents > 0 ? QStringLiteral("+%1").arg(cents) : QString::number(cents);
        p.drawText(QRectF(at.x() - 15 * unit, at.y() - 5 * unit, 30 * unit, 10 * unit), Qt::AlignCenter, text);
    }
    font.setPixelSize(qMax(8, int(11 * unit)));
    p.setFont(font);
    const QPointF flat = dial.pointAt(-50, 0.60);
    const QPointF sharp = dial.pointAt(50, 0.60);
    p.drawText(QRectF(flat.x() - 8 * unit, flat.y() - 8 * unit, 16 * unit, 16 * unit), Qt::AlignCenter,
        QStringLiteral("\u266d"));
    p.drawText(QRectF(sharp.x() - 8 * unit, sharp.y() - 8 * unit, 16 * unit, 16 * unit), Qt::AlignCenter,
        QStringLiteral("\u266f"));
}

void TunerNeedle::paintEvent(QPaintEvent*)
{
    const TunerDialGeometry dial(size());
    const double unit = dial.face().height() / 100.0;
    const bool inTune = !m_silent && TunerDialGeometry::isInTune(m_shownCents);

    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.drawPixmap(0, 0, m_face);

    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(qMax(8, int(20 * unit)));
    p.setFont(font);
    p.setPen(inTune ? s_green : s_ink);
    p.drawText(dial.nameRect(), Qt::AlignCenter, m_silent ? QStringLiteral("\u2013") : m_stringName);
    if (!m_silent) {
        font.setBold(false);
        font.setPixelSize(qMax(6, int(9 * unit)));
        p.setFont(font);
        p.drawText(dial.readingRect(), Qt::AlignCenter, readingText(m_shownCents));
    }

    const QPointF base = dial.pointAt(m_shownCents, TunerDialGeometry::NeedleBase);
    const QPointF tip = dial.pointAt(m_shownCents, TunerDialGeometry::NeedleTip);
    p.setPen(QPen(QColor(0, 0, 0, 60), 2.4 * unit, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(base + QPointF(unit, unit), tip + QPointF(unit, unit));
    p.setPen(QPen(
        m_silent ? QColor(150, 140, 128) : (inTune ? s_green : s_copper), 1.8 * unit, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(base, tip);

    QRadialGradient cap(base - QPointF(unit, unit), 4 * unit);
    cap.setColorAt(0.0, QColor(250, 220, 140));
    cap.setColorAt(1.0, QColor(150, 110, 40));
    p.setPen(QPen(s_walnutDark, 0.6 * unit));
    p.setBrush(cap);
    p.drawEllipse(base, 3 * unit, 3 * unit);
}

} // namespace QMMusic
