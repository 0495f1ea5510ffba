#include "GuitarTonariumMainPage.h"

#include "GuitarShop.h"
#include "GuitarTonarium.h"
#include "PromoMenuBar.h"

#include <QVBoxLayout>

namespace QMMusic {

GuitarTonariumMainPage::GuitarTonariumMainPage(QWidget* parent)
    : BaseMainPage(parent)
    , m_guitarTonarium(new GuitarTonarium)
{
    setObjectName(QStringLiteral("GuitarTonariumMainPage"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(promoMenuBar());
    layout->addWidget(m_guitarTonarium);
}

GuitarTonarium* GuitarTonariumMainPage::guitarTonarium() const
{
    return m_guitarTonarium;
}

void GuitarTonariumMainPage::addShopMenu()
{
    setShop(new GuitarShop(this));
    doShopConnections();
}

} // namespace QMMusic
