#include "PromoMainPage.h"

#include "PromoMenuBar.h"

namespace QMWidgets {

PromoMainPage::PromoMainPage(QWidget* parent)
    : QFrame(parent)
    , m_promoMenuBar(new PromoMenuBar)
{
}

PromoMainPage::~PromoMainPage()
{
    // A page that never placed its bar still owns it.
    if (!m_promoMenuBar->parent())
        delete m_promoMenuBar;
}

PromoMenuBar* PromoMainPage::promoMenuBar() const
{
    return m_promoMenuBar;
}

} // namespace QMWidgets
