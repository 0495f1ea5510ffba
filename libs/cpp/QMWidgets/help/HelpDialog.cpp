#include "HelpDialog.h"

#include "App.h"
#include "Common.h"
#include "HelpViewArea.h"

#include <QBoxLayout>
#include <QPushButton>

namespace QMWidgets {

namespace {
const char* const kNeverShowKey = "NeverShowItAgain";
} // namespace

HelpDialog::HelpDialog(QWidget* parent)
    : QDialog(parent)
    , m_neverShowButton(new QPushButton(tr("&Never show on start"), this))
    , m_viewArea(new HelpViewArea(this))
{
    setWindowTitle(QCoreApplication::applicationName() + tr(" Introduction"));
    setObjectName(QStringLiteral("Dialog"));

    auto* closeButton = new QPushButton(tr("&Close"), this);
    Common::applyPushButtonDetails(closeButton);
    Common::applyPushButtonDetails(m_neverShowButton);
    connect(closeButton, &QPushButton::clicked, this, &HelpDialog::slotReject);
    connect(m_neverShowButton, &QPushButton::clicked, this, &HelpDialog::slotNeverShowItAgain);

    const App* app = App::theApp();
    const bool pocket = app && app->isPocketDevice();
    auto* buttonRow = new QBoxLayout(pocket ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    buttonRow->setContentsMargins(0, 0, 0, 0);
    buttonRow->setSpacing(5);
    buttonRow->addStretch(1);
    buttonRow->addWidget(m_neverShowButton);
    buttonRow->addWidget(closeButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_viewArea);
    layout->addLayout(buttonRow);

    closeButton->setFocus();
}

void HelpDialog::addSlide(const QString& path)
{
    m_viewArea->addSlide(path);
}

HelpViewArea* HelpDialog::viewArea() const
{
    return m_viewArea;
}

bool HelpDialog::isShowOnStartAvailable()
{
    const App* app = App::theApp();
    return !app || !app->settingsValue(QLatin1String(kNeverShowKey), false).toBool();
}

void HelpDialog::slotReject()
{
    reject();
}

void HelpDialog::slotNeverShowItAgain()
{
    if (App* app = App::theApp())
        app->setSettingsValue(QLatin1String(kNeverShowKey), true);
    accept();
}

void HelpDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_neverShowButton->setVisible(isShowOnStartAvailable());
    m_viewArea->slotStartSlideShow();
}

void HelpDialog::hideEvent(QHideEvent* event)
{
    m_viewArea->slotStopSlideShow();
    QDialog::hideEvent(event);
}

} // namespace QMWidgets
