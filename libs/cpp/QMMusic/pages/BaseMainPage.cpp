#include "BaseMainPage.h"

#include "MusicShopBase.h"
#include "PromoMenuBar.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QDesktopServices>
#include <QIcon>
#include <QUrl>

namespace QMMusic {

BaseMainPage::BaseMainPage(QWidget* parent)
    : QFrame(parent)
    , m_promoMenuBar(new QMWidgets::PromoMenuBar)
{
}

BaseMainPage::~BaseMainPage()
{
    // A page that never placed its bar in a layout still owns it.
    if (!m_promoMenuBar->parent())
        delete m_promoMenuBar;
}

QMWidgets::PromoMenuBar* BaseMainPage::promoMenuBar() const
{
    return m_promoMenuBar;
}

MusicShopBase* BaseMainPage::shop() const
{
    return m_shop;
}

void BaseMainPage::setShop(MusicShopBase* shop)
{
    m_shop = shop;
}

void BaseMainPage::doShopConnections()
{
    struct Entry
    {
        const char* icon;
        const char* text;
        void (BaseMainPage::*slot)();
    };
    const Entry shelves[] = {
        { ":/musthave.png", QT_TR_NOOP("Must Have"), &BaseMainPage::slotMustHave },
        { ":/nicetohave.png", QT_TR_NOOP("Nice to Have"), &BaseMainPage::slotNiceToHave },
        { ":/read.png", QT_TR_NOOP("Read"), &BaseMainPage::slotRead },
        { ":/ohr.png", QT_TR_NOOP("Hear"), &BaseMainPage::slotHear },
        { ":/eye.png", QT_TR_NOOP("See"), &BaseMainPage::slotSee },
    };
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());

    m_promoMenuBar->addMenuSeparator();
    for (const Entry& entry : shelves) {
        auto* action = new QAction(QIcon(QPixmap(QLatin1String(entry.icon))), QString(), this);
        texts->setText(action, entry.text);
        connect(action, &QAction::triggered, this, entry.slot);
        m_promoMenuBar->addMenuAction(action);
    }
    m_promoMenuBar->addMenuSeparator();
    auto* wikipedia = new QAction(QIcon(QPixmap(QStringLiteral(":/wikipedia.png"))), QString(), this);
    texts->setText(wikipedia, QT_TR_NOOP("Wikipedia"));
    connect(wikipedia, &QAction::triggered, this, &BaseMainPage::slotWikipedia);
    m_promoMenuBar->addMenuAction(wikipedia);
}

void BaseMainPage::openLink(const QString& link)
{
    QDesktopServices::openUrl(QUrl(link));
}

void BaseMainPage::slotMustHave()
{
    if (m_shop)
        openLink(m_shop->mustHave());
}

void BaseMainPage::slotNiceToHave()
{
    if (m_shop)
        openLink(m_shop->niceToHave());
}

void BaseMainPage::slotRead()
{
    if (m_shop)
        openLink(m_shop->read());
}

void BaseMainPage::slotHear()
{
    if (m_shop)
        openLink(m_shop->hear());
}

void BaseMainPage::slotSee()
{
    if (m_shop)
        openLink(m_shop->see());
}

void BaseMainPage::slotWikipedia()
{
    if (m_shop)
        openLink(m_shop->wikipedia());
}

} // namespace QMMusic
