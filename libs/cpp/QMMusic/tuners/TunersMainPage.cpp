#include "TunersMainPage.h"

#include "App.h"
#include "BalalaikaTuner.h"
#include "BanjoTuner.h"
#include "BassGuitarTuner.h"
#include "CelloTuner.h"
#include "DombraTuner.h"
#include "DoubleBassTuner.h"
#include "FamilyPrograms.h"
#include "GuitarTuner.h"
#include "MandolinTuner.h"
#include "TunersExplorer.h"
#include "TunersStyleSheet.h"
#include "UkuleleTuner.h"
#include "ViolaTuner.h"
#include "ViolinTuner.h"

#include <QApplication>
#include <QCursor>
#include <QHBoxLayout>
#include <QMenu>
#include <QResizeEvent>
#include <QStackedWidget>

namespace QMMusic {

namespace {
constexpr int kDefaultWidth = 736;
constexpr int kDefaultHeight = 636;
} // namespace

TunersMainPage::TunersMainPage(QWidget* parent, bool hideExplorer)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("MainPage"));
    // Added to the frame's rules, so that dialogs keep the program's looks.
    if (qApp && !qApp->styleSheet().contains(TunersStyleSheet::text()))
        qApp->setStyleSheet(qApp->styleSheet() + TunersStyleSheet::text());

    m_explorer = new TunersExplorer(this);
    m_explorer->setVisible(!hideExplorer);

    m_violin = new ViolinTuner;
    m_viola = new ViolaTuner;
    m_cello = new CelloTuner;
    m_doubleBass = new DoubleBassTuner;
    m_guitar = new GuitarTuner;
    m_bassGuitar = new BassGuitarTuner;
    m_ukulele = new UkuleleTuner;
    m_banjo = new BanjoTuner;
    m_balalaika = new BalalaikaTuner;
    m_mandolin = new MandolinTuner;
    m_dombra = new DombraTuner;
    m_stack = new QStackedWidget(this);
    for (TunerBasePage* page : { m_guitar, m_bassGuitar, m_ukulele, m_banjo, m_violin, m_viola, m_cello, m_doubleBass,
             m_balalaika, m_mandolin, m_dombra })
        m_stack->addWidget(page);

    connect(m_explorer, &TunersExplorer::showViolin, this, &TunersMainPage::slotShowViolin);
    connect(m_explorer, &TunersExplorer::showViola, this, &TunersMainPage::slotShowViola);
    connect(m_explorer, &TunersExplorer::showCello, this, &TunersMainPage::slotShowCello);
    connect(m_explorer, &TunersExplorer::showDoubleBass, this, &TunersMainPage::slotShowDoubleBass);
    connect(m_explorer, &TunersExplorer::showGuitar, this, &TunersMainPage::slotShowGuitar);
    connect(m_explorer, &TunersExplorer::showBassGuitar, this, &TunersMainPage::slotShowBassGuitar);
    connect(m_explorer, &TunersExplorer::showUkulele, this, &TunersMainPage::slotShowUkulele);
    connect(m_explorer, &TunersExplorer::showBanjo, this, &TunersMainPage::slotShowBanjo);
    connect(m_explorer, &TunersExplorer::showMandolin, this, &TunersMainPage::slotShowMandolin);
    connect(m_explorer, &TunersExplorer::showBalalaika, this, &TunersMainPage::slotShowBalalaika);
    connect(m_explorer, &TunersExplorer::showDombra, this, &TunersMainPage::slotShowDombra);
    connect(m_explorer, &TunersExplorer::showMore, this, &TunersMainPage::slotGotoPromotedApp);
    connect(m_explorer, &TunersExplorer::repeatModeChangedTo, this, &TunersMainPage::slotSetRepeatMode);

    m_programsMenu = new QMenu(this);
    for (const QMWidgets::FamilyPrograms::Program& program : QMWidgets::FamilyPrograms::available())
        m_programsMenu->addAction(QMWidgets::FamilyPrograms::makeAction(program, m_programsMenu));

    auto* separator = new QFrame(this);
    separator->setFrameStyle(QFrame::VLine | QFrame::Raised);
    separator->setLineWidth(2);
    separator->setObjectName(QStringLiteral("MainSeparator"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_explorer);
    layout->addWidget(separator);
    layout->addWidget(m_stack);

    // With the explorer in sight its bar serves every page; the pages' bars
    // keep only what is their own.
    if (!hideExplorer)
        hideAppOptionsOnEachPage();

    const QMWidgets::App* app = QMWidgets::App::theApp();
    resize(app ? app->settingsValue(QStringLiteral("Width"), kDefaultWidth).toInt() : kDefaultWidth,
        app ? app->settingsValue(QStringLiteral("Height"), kDefaultHeight).toInt() : kDefaultHeight);
    m_stack->setCurrentWidget(m_guitar);
}

QSize TunersMainPage::sizeHint() const
{
    return QSize(kDefaultWidth, kDefaultHeight);
}

TunersExplorer* TunersMainPage::explorer() const
{
    return m_explorer;
}

QStackedWidget* TunersMainPage::stack() const
{
    return m_stack;
}

QList<TunerBasePage*> TunersMainPage::pages() const
{
    return { m_violin, m_viola, m_cello, m_doubleBass, m_guitar, m_bassGuitar, m_ukulele, m_banjo, m_balalaika,
        m_mandolin, m_dombra };
}

QMenu* TunersMainPage::programsMenu() const
{
    return m_programsMenu;
}

void TunersMainPage::hideAppOptionsOnEachPage()
{
    for (TunerBasePage* page : pages())
        page->hideAppOptions();
}

void TunersMainPage::slotShowViolin()
{
    m_stack->setCurrentWidget(m_violin);
}

void TunersMainPage::slotShowViola()
{
    m_stack->setCurrentWidget(m_viola);
}

void TunersMainPage::slotShowCello()
{
    m_stack->setCurrentWidget(m_cello);
}

void TunersMainPage::slotShowDoubleBass()
{
    m_stack->setCurrentWidget(m_doubleBass);
}

void TunersMainPage::slotShowGuitar()
{
    m_stack->setCurrentWidget(m_guitar);
}

void TunersMainPage::slotShowBassGuitar()
{
    m_stack->setCurrentWidget(m_bassGuitar);
}

void TunersMainPage::slotShowUkulele()
{
    m_stack->setCurrentWidget(m_ukulele);
}

void TunersMainPage::slotShowBanjo()
{
    m_stack->setCurrentWidget(m_banjo);
}

void TunersMainPage::slotShowBalalaika()
{
    m_stack->setCurrentWidget(m_balalaika);
}

void TunersMainPage::slotShowMandolin()
{
    m_stack->setCurrentWidget(m_mandolin);
}

void TunersMainPage::slotShowDombra()
{
    m_stack->setCurrentWidget(m_dombra);
}

void TunersMainPage::slotSetRepeatMode(bool on)
{
    for (TunerBasePage* page : pages())
        page->slotSetRepeatMode(on);
}

void TunersMainPage::slotGotoPromotedApp()
{
    // Where a store page was, the family's installed programs are offered.
    if (!m_programsMenu->isEmpty())
        m_programsMenu->popup(QCursor::pos());
}

void TunersMainPage::resizeEvent(QResizeEvent* event)
{
    if (QMWidgets::App* app = QMWidgets::App::theApp()) {
        app->setSettingsValue(QStringLiteral("Width"), event->size().width());
        app->setSettingsValue(QStringLiteral("Height"), event->size().height());
    }
    QFrame::resizeEvent(event);
}

} // namespace QMMusic
