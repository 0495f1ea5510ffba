#include "NotesLernBar.h"

#include <QLinearGradient>
#include <QPainter>

namespace QMMusic {

namespace {

QLinearGradient barGradient(int height, const QColor& edge, const QColor& middle)
{
    QLinearGradient gradient(0, 0, 0, height);
    gradient.setColorAt(0.0, edge);
    gradient.setColorAt(0.5, middle);
    gradient.setColorAt(1.0, edge);
    return gradient;
}

} // namespace

NotesLernBar::NotesLernBar(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("NotesLernBar"));
    setFixedHeight(24);
}

int NotesLernBar::wrongCount() const
{
    return m_wrongCount;
}

int NotesLernBar::rightCount() const
{
    return m_rightCount;
}

void NotesLernBar::setWrongCount(const int& count)
{
    m_wrongCount = count;
}

void NotesLernBar::setRightCount(const int& count)
{
    m_rightCount = count;
}

void NotesLernBar::incWrong()
{
    ++m_wrongCount;
}

void NotesLernBar::incRight()
{
    ++m_rightCount;
}

void NotesLernBar::reset()
{
    m_wrongCount = 0;
    m_rightCount = 0;
}

float NotesLernBar::rightShare(int right, int wrong)
{
    if (right + wrong == 0)
        return 0.0f;
    return float(right) * 100.0f / float(right + wrong);
}

QString NotesLernBar::percentText(int right, int wrong)
{
    return QString::number(int(rightShare(right, wrong))) + QLatin1Char('%');
}

int NotesLernBar::rightWidth(int width, int right, int wrong)
{
    const float fraction = rightShare(right, wrong) / 100.0f;
    return int(float(width) * fraction);
}

int NotesLernBar::wrongWidth(int width, int right, int wrong)
{
    const float fraction = rightShare(right, wrong) / 100.0f;
    return int(float(width) - float(width) * fraction);
}

void NotesLernBar::paintEvent(QPaintEvent* event)
{
    if (m_rightCount != 0 || m_wrongCount != 0) {
        QPainter painter(this);
        painter.setPen(Qt::NoPen);

        const int w = width();
        const int h = height();
        const int greenWidth = rightWidth(w, m_rightCount, m_wrongCount);
        painter.setBrush(barGradient(h, QColor(20, 90, 20), QColor(90, 220, 90)));
        painter.drawRect(0, 0, greenWidth, h);
        painter.setBrush(barGradient(h, QColor(90, 20, 20), QColor(220, 90, 90)));
        painter.drawRect(greenWidth, 0, wrongWidth(w, m_rightCount, m_wrongCount), h);

        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, percentText(m_rightCount, m_wrongCount));
    }
    QFrame::paintEvent(event);
}

} // namespace QMMusic
