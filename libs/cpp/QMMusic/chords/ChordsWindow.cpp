#include "ChordsWindow.h"

#include "App.h"
#include "BalalaikaChordsMainPage.h"
#include "BanjoChordsMainPage.h"
#include "BassChordsMainPage.h"
#include "BassChordsMainPage2.h"
#include "CorvaneProducts.h"
#include "GuitarChordsMainPage.h"
#include "MandolinChordsMainPage.h"
#include "PianoChordsMainPage.h"
#include "PromoMenuBar.h"
#include "TranslatedTexts.h"
#include "UkuleleChordsMainPage.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

struct Instrument
{
    const char* key;
    const char* title;
};

const Instrument kInstruments[] = {
    { "guitar", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Guitar") },
    { "bass", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Bass") },
    { "bass2", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Bass, high voicings") },
    { "ukulele", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Ukulele") },
    { "mandolin", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Mandolin") },
    { "banjo", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Banjo") },
    { "balalaika", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Balalaika") },
    { "piano", QT_TRANSLATE_NOOP("QMMusic::ChordsWindow", "Piano") },
};

const char kSettingsKey[] = "ChordsInstrument";

const char* titleOf(const QString& key)
{
    for (const Instrument& instrument : kInstruments) {
        if (key == QLatin1String(instrument.key))
            return instrument.title;
    }
    return "";
}

} // namespace

ChordsWindow::ChordsWindow(QWidget* parent)
    : QFrame(parent)
    , m_layout(new QVBoxLayout(this))
    , m_instrumentMenu(new QMenu(this))
{
    setObjectName(QStringLiteral("ChordsWindow"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    auto* texts = new QMWidgets::TranslatedTexts(m_instrumentMenu, staticMetaObject.className());
    auto* group = new QActionGroup(this);
    for (const Instrument& instrument : kInstruments) {
        QAction* action = m_instrumentMenu->addAction(QString());
        texts->setText(action, instrument.title);
        action->setCheckable(true);
        action->setData(QLatin1String(instrument.key));
        group->addAction(action);
        const QString key = QLatin1String(instrument.key);
        connect(action, &QAction::triggered, this, [this, key]() { slotShowInstrument(key); });
    }

    const QMWidgets::App* app = QMWidgets::App::theApp();
    const QString stored = app ? app->settingsValue(QLatin1String(kSettingsKey)).toString() : QString();
    slotShowInstrument(instrumentKeys().contains(stored) ? stored : QStringLiteral("guitar"));
}

QSize ChordsWindow::sizeHint() const
{
    return QSize(820, 720);
}

QStringList ChordsWindow::instrumentKeys()
{
    QStringList keys;
    for (const Instrument& instrument : kInstruments)
        keys.append(QLatin1String(instrument.key));
    return keys;
}

QString ChordsWindow::instrumentKey() const
{
    return m_key;
}

ChordsMainPage* ChordsWindow::page() const
{
    return m_page;
}

QMenu* ChordsWindow::instrumentMenu() const
{
    return m_instrumentMenu;
}

ChordsMainPage* ChordsWindow::makePage(const QString& key)
{
    if (key == QLatin1String("bass"))
        return new BassChordsMainPage;
    if (key == QLatin1String("bass2"))
        return new BassChordsMainPage2;
    if (key == QLatin1String("ukulele"))
        return new UkuleleChordsMainPage;
    if (key == QLatin1String("mandolin"))
        return new MandolinChordsMainPage;
    if (key == QLatin1String("banjo"))
        return new BanjoChordsMainPage;
    if (key == QLatin1String("balalaika"))
        return new BalalaikaChordsMainPage;
    if (key == QLatin1String("piano"))
        return new PianoChordsMainPage;
    return new GuitarChordsMainPage;
}

void ChordsWindow::slotShowInstrument(const QString& key)
{
    if (key == m_key || !instrumentKeys().contains(key))
        return;
    ChordsMainPage* page = makePage(key);
    page->addShopMenu();
    QMWidgets::CorvaneProducts::addTo(page->promoMenuBar());
    auto* instrumentButton = new QPushButton;
    auto* texts = new QMWidgets::TranslatedTexts(instrumentButton, staticMetaObject.className());
    texts->setText(instrumentButton, titleOf(key));
    instrumentButton->setObjectName(QStringLiteral("InstrumentButton"));
    instrumentButton->setMenu(m_instrumentMenu);
    page->promoMenuBar()->addCenterWidget(instrumentButton);
    page->applyStyle();

    if (m_page) {
        // The song first, silently; then the chord, which shows itself.
        page->setCurrentTransposerChords(m_page->currentTransposerChords());
        page->setCurrentTransposerChordIndex(m_page->currentTransposerChordIndex());
        page->setCurrentChord(m_page->currentChord());
        m_layout->removeWidget(m_page);
        m_page->deleteLater();
    }
    m_page = page;
    m_key = key;
    m_layout->addWidget(page);
    for (QAction* action : m_instrumentMenu->actions())
        action->setChecked(action->data().toString() == key);
    if (QMWidgets::App* app = QMWidgets::App::theApp())
        app->setSettingsValue(QLatin1String(kSettingsKey), key);
}

} // namespace QMMusic
