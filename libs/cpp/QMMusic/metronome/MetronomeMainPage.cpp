#include "MetronomeMainPage.h"

#include "Metronome.h"
#include "PromoMenuBar.h"

#include <QVBoxLayout>

namespace QMMusic {

MetronomeMainPage::MetronomeMainPage(QWidget* parent)
    : QFrame(parent)
    , m_promoMenuBar(new QMWidgets::PromoMenuBar)
    , m_metronome(new Metronome)
{
    setObjectName(QStringLiteral("MetronomeMainPage"));
    setMinimumSize(200, 200);
    m_promoMenuBar->hideRateButton();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_promoMenuBar);
    layout->addWidget(m_metronome);
}

QSize MetronomeMainPage::sizeHint() const
{
    return QSize(600, 760);
}

QMWidgets::PromoMenuBar* MetronomeMainPage::promoMenuBar() const
{
    return m_promoMenuBar;
}

Metronome* MetronomeMainPage::metronome() const
{
    return m_metronome;
}

} // namespace QMMusic
