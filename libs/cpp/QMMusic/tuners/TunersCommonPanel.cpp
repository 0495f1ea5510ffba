#include "TunersCommonPanel.h"

#include "AboutDialog.h"
#include "App.h"
#include "TranslatedTexts.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QPushButton>

namespace QMMusic {

namespace {

constexpr int kDefaultPitch = 440;

struct PitchEntry
{
    int pitch;
    const char* text;
    void (TunersCommonPanel::*slot)();
};

// The menu's texts as the program has always shown them.
const PitchEntry kPitchEntries[] = {
    { 415, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:415Hz (Baroque Pitch)"),
        &TunersCommonPanel::slotSetPitch415 },
    { 430, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:430Hz (Scintific Pitch)"),
        &TunersCommonPanel::slotSetPitch430 },
    { 435, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:435Hz (France1859 Pitch)"),
        &TunersCommonPanel::slotSetPitch435 },
    { 439, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:439Hz (New Philarmonic Pitch)"),
        &TunersCommonPanel::slotSetPitch439 },
    { 440, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:440Hz (Concert Pitch)"),
        &TunersCommonPanel::slotSetPitch440 },
    { 442, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:442Hz (Boston Symphony Orchestra Pitch)"),
        &TunersCommonPanel::slotSetPitch442 },
    { 443, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:443Hz (New Berliner Philharmonic Pitch)"),
        &TunersCommonPanel::slotSetPitch443 },
    { 445, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:445Hz (Old Berliner Philharmonic Pitch)"),
        &TunersCommonPanel::slotSetPitch445 },
    { 452, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:452Hz (Old Philarmonic Pitch)"),
        &TunersCommonPanel::slotSetPitch452 },
    { 460, QT_TRANSLATE_NOOP("QMMusic::TunersCommonPanel", "A4:460Hz (Renaissance Pitch)"),
        &TunersCommonPanel::slotSetPitch460 },
};

} // namespace

const QVector<int>& TunersCommonPanel::pitches()
{
    static const QVector<int> list = [] {
        QVector<int> result;
        for (const PitchEntry& entry : kPitchEntries)
            result.append(entry.pitch);
        return result;
    }();
    return list;
}

int TunersCommonPanel::storedPitch()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    if (!app)
        return kDefaultPitch;
    bool isNumber = false;
    const int pitch = app->settingsValue(QStringLiteral("Pitch"), kDefaultPitch).toString().toInt(&isNumber);
    return isNumber && pitches().contains(pitch) ? pitch : kDefaultPitch;
}

TunersCommonPanel::TunersCommonPanel(QWidget* parent)
    : QFrame(parent)
    , m_layout(new QHBoxLayout(this))
    , m_pitchButton(makePanelButton(this))
    , m_repeatButton(makePanelButton(this))
    , m_appButton(makePanelButton(this))
{
    setObjectName(QStringLiteral("TunersCommonPanel"));
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());

    // The pitch button shows the pitch itself, so its text is not kept translated.
    m_pitchButton->setText(tr("Pitch"));
    texts->setText(m_repeatButton, QT_TR_NOOP("Repeat"));
    texts->setText(m_appButton, QT_TR_NOOP("App"));
    m_repeatButton->setCheckable(true);
    connect(m_repeatButton, &QPushButton::clicked, this, &TunersCommonPanel::slotRepeatModeChanged);
    makePitchMenu();
    makeAppMenu();

    m_layout->setContentsMargins(10, 10, 10, 10);
    m_layout->setSpacing(5);
    m_layout->addWidget(m_repeatButton);
    m_layout->addStretch(1);
    m_layout->addWidget(m_pitchButton);
    m_layout->addStretch(1);
    m_layout->addWidget(m_appButton);
    m_layout->addStretch(1);

    // Written back at once, so a value the menu cannot show is replaced in the store too.
    setPitch(storedPitch());
    const QMWidgets::App* app = QMWidgets::App::theApp();
    m_repeatButton->setChecked(app && app->settingsValue(QStringLiteral("Repeat"), false).toBool());
}

QPushButton* TunersCommonPanel::makePanelButton(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QStringLiteral("PanelButton"));
    button->setFlat(true);
    button->setMinimumHeight(32);
    return button;
}

void TunersCommonPanel::makePitchMenu()
{
    auto* menu = new QMenu(m_pitchButton);
    auto* texts = new QMWidgets::TranslatedTexts(menu, staticMetaObject.className());
    for (const PitchEntry& entry : kPitchEntries)
        texts->setText(menu->addAction(QString(), this, entry.slot), entry.text);
    m_pitchButton->setMenu(menu);
}

void TunersCommonPanel::makeAppMenu()
{
    QMWidgets::App* app = QMWidgets::App::theApp();
    auto* menu = new QMenu(m_appButton);
    auto* texts = new QMWidgets::TranslatedTexts(menu, staticMetaObject.className());
    const auto add = [menu, texts](const char* icon, const char* text, auto receiver, auto slot) {
        texts->setText(menu->addAction(QIcon(QLatin1String(icon)), QString(), receiver, slot), text);
    };
    if (app) {
        add(":/star.png", QT_TR_NOOP("Rate this App"), app, &QMWidgets::App::slotRateApp);
        add(":/recommend.png", QT_TR_NOOP("Share"), app, &QMWidgets::App::slotShareApp);
        add(":/join.png", QT_TR_NOOP("Join"), app, &QMWidgets::App::slotJoin);
        add(":/moreappsicon.png", QT_TR_NOOP("More Apps"), app, &QMWidgets::App::slotShowMoreApps);
        add(":/feedback.png", QT_TR_NOOP("Contacts Us"), app, &QMWidgets::App::slotContactUs);
        add(":/webpage.png", QT_TR_NOOP("Support Page"), app, &QMWidgets::App::slotSupportPage);
    }
    add(":/appicon.png", QT_TR_NOOP("About"), this, &TunersCommonPanel::slotAbout);
    menu->addSeparator();
    texts->setText(menu->addAction(QString(), qApp, &QCoreApplication::quit), QT_TR_NOOP("Quit"));
    m_appButton->setMenu(menu);
}

void TunersCommonPanel::setPitch(int pitch)
{
    m_pitchButton->setText(QStringLiteral("A4:%1Hz").arg(pitch));
    if (QMWidgets::App* app = QMWidgets::App::theApp())
        app->setSettingsValue(QStringLiteral("Pitch"), pitch);
}

QPushButton* TunersCommonPanel::pitchButton() const
{
    return m_pitchButton;
}

QPushButton* TunersCommonPanel::repeatButton() const
{
    return m_repeatButton;
}

QPushButton* TunersCommonPanel::appButton() const
{
    return m_appButton;
}

QHBoxLayout* TunersCommonPanel::boxLayout() const
{
    return m_layout;
}

void TunersCommonPanel::slotSetPitch415()
{
    setPitch(415);
}

void TunersCommonPanel::slotSetPitch430()
{
    setPitch(430);
}

void TunersCommonPanel::slotSetPitch435()
{
    setPitch(435);
}

void TunersCommonPanel::slotSetPitch439()
{
    setPitch(439);
}

void TunersCommonPanel::slotSetPitch440()
{
    setPitch(440);
}

void TunersCommonPanel::slotSetPitch442()
{
    setPitch(442);
}

void TunersCommonPanel::slotSetPitch443()
{
    setPitch(443);
}

void TunersCommonPanel::slotSetPitch445()
{
    setPitch(445);
}

void TunersCommonPanel::slotSetPitch452()
{
    setPitch(452);
}

void TunersCommonPanel::slotSetPitch460()
{
    setPitch(460);
}

void TunersCommonPanel::slotRepeatModeChanged(bool on)
{
    emit repeatModeChangedTo(on);
    if (QMWidgets::App* app = QMWidgets::App::theApp())
        app->setSettingsValue(QStringLiteral("Repeat"), on);
}

void TunersCommonPanel::slotAbout()
{
    QMWidgets::AboutDialog dialog(this);
    dialog.exec();
}

} // namespace QMMusic
