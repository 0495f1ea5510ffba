#include "MetronomeBeats.h"

#include <QHBoxLayout>
#include <QLabel>

namespace QMMusic {

MetronomeBeats::MetronomeBeats(QWidget* parent)
    : QFrame(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(7);
    for (int i = 0; i < LampCount; ++i) {
        auto* lamp = new QLabel;
        lamp->setObjectName(QStringLiteral("Beat"));
        lamp->setFixedSize(50, 50);
        lamp->setEnabled(false);
        lamp->setAlignment(Qt::AlignCenter);
        layout->addWidget(lamp);
        m_lamps.append(lamp);
    }
    layout->addStretch();
    setFixedHeight(60);
}

void MetronomeBeats::setCurrentBeat(int i)
{
    if (i >= LampCount)
        return;
    for (QLabel* lamp : qAsConst(m_lamps))
        lamp->setEnabled(false);
    if (i >= 0)
        m_lamps.at(i)->setEnabled(true);
}

int MetronomeBeats::count() const
{
    return m_count;
}

const QVector<QLabel*>& MetronomeBeats::lamps() const
{
    return m_lamps;
}

void MetronomeBeats::slotSetBeats(int n)
{
    if (n > LampCount)
        return;
    m_count = n;
    for (int i = 0; i < LampCount; ++i)
        m_lamps.at(i)->setVisible(i < n);
}

} // namespace QMMusic
