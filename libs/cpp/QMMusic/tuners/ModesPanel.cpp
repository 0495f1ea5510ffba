#include "ModesPanel.h"

#include "PromoMenuBar.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QPushButton>
#include <QSignalMapper>
#include <QUrl>

namespace QMMusic {

ModesPanel::ModesPanel(QWidget* parent)
    : TunersCommonPanel(parent)
    , m_modesButton(makePanelButton(this))
    , m_moreButton(makePanelButton(this))
    , m_mapper(new QSignalMapper(this))
    , m_moreMenu(new QMenu(m_moreButton))
{
    setObjectName(QStringLiteral("ModesPanel"));
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());
    texts->setText(m_modesButton, QT_TR_NOOP("Modes"));
    texts->setText(m_moreButton, QT_TR_NOOP("More"));
    m_modesButton->hide();
    m_moreButton->setMenu(m_moreMenu);
    connect(m_mapper, &QSignalMapper::mappedString, this, &ModesPanel::slotCallUrl);

    boxLayout()->insertWidget(1, m_modesButton);
    boxLayout()->addWidget(m_moreButton);
}

QPushButton* ModesPanel::modesButton() const
{
    return m_modesButton;
}

QPushButton* ModesPanel::moreButton() const
{
    return m_moreButton;
}

QMenu* ModesPanel::moreMenu() const
{
    return m_moreMenu;
}

void ModesPanel::addMenuLink(const QPixmap& icon, const QString& title, const QString& address)
{
    auto* action = new QAction(QIcon(icon), title, this);
    connect(action, &QAction::triggered, m_mapper, qOverload<>(&QSignalMapper::map));
    m_mapper->setMapping(action, address);
    m_moreMenu->addAction(action);
}

void ModesPanel::addMenuAppLink(
    const QPixmap& icon, const QString& title, const QString& name, const QString& identifier)
{
    addMenuLink(icon, title, QMWidgets::PromoMenuBar::storeLink(name, identifier));
}

void ModesPanel::addMenuAction(QAction* action)
{
    m_moreMenu->addAction(action);
}

void ModesPanel::addMenuSeparator()
{
    m_moreMenu->addSeparator();
}

void ModesPanel::addBaseActions()
{
    struct Entry
    {
        const char* icon;
        const char* text;
        void (ModesPanel::*slot)();
    };
    static const Entry shelves[] = {
        { ":/musthave.png", QT_TR_NOOP("Must Have"), &ModesPanel::slotMustHave },
        { ":/nicetohave.png", QT_TR_NOOP("Nice to Have"), &ModesPanel::slotNiceToHave },
        { ":/read.png", QT_TR_NOOP("Read"), &ModesPanel::slotRead },
        { ":/ohr.png", QT_TR_NOOP("Hear"), &ModesPanel::slotHear },
        { ":/eye.png", QT_TR_NOOP("See"), &ModesPanel::slotSee },
    };
    auto* texts = new QMWidgets::TranslatedTexts(m_moreMenu, staticMetaObject.className());
    for (const Entry& entry : shelves)
        texts->setText(
            m_moreMenu->addAction(QIcon(QLatin1String(entry.icon)), QString(), this, entry.slot), entry.text);
    m_moreMenu->addSeparator();
    texts->setText(
        m_moreMenu->addAction(QIcon(QStringLiteral(":/wikipedia.png")), QString(), this, &ModesPanel::slotWikipedia),
        QT_TR_NOOP("Wikipedia"));
}

void ModesPanel::hideAppOptions()
{
    repeatButton()->hide();
    pitchButton()->hide();
    appButton()->hide();
}

void ModesPanel::setMustHave(const QString& address)
{
    m_mustHave = address;
}

void ModesPanel::setNiceToHave(const QString& address)
{
    m_niceToHave = address;
}

void ModesPanel::setRead(const QString& address)
{
    m_read = address;
}

void ModesPanel::setHear(const QString& address)
{
    m_hear = address;
}

void ModesPanel::setSee(const QString& address)
{
    m_see = address;
}

void ModesPanel::setWikipedia(const QString& address)
{
    m_wikipedia = address;
}

void ModesPanel::slotMustHave()
{
    slotCallUrl(m_mustHave);
}

void ModesPanel::slotNiceToHave()
{
    slotCallUrl(m_niceToHave);
}

void ModesPanel::slotRead()
{
    slotCallUrl(m_read);
}

void ModesPanel::slotHear()
{
    slotCallUrl(m_hear);
}

void ModesPanel::slotSee()
{
    slotCallUrl(m_see);
}

void ModesPanel::slotWikipedia()
{
    slotCallUrl(m_wikipedia);
}

void ModesPanel::slotCallUrl(const QString& address)
{
    if (!address.isEmpty())
        QDesktopServices::openUrl(QUrl(address));
}

} // namespace QMMusic
