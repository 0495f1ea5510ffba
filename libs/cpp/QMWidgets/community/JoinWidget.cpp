#include "JoinWidget.h"

#include "App.h"
#include "CorvaneSite.h"
#include "TellWidget.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets {

JoinWidget::JoinWidget(QWidget* parent)
    : QFrame(parent)
    , m_requestTemplate(
          QLatin1String(CorvaneSite::webHost) + QStringLiteral("/apps/appscontrol/index.php?app=%1&social=%2"))
{
    const App* app = App::theApp();
    const bool pocket = app->isPocketDevice();
    auto* heading = new QLabel(this);
    heading->setAlignment(Qt::AlignHCenter);
    heading->setContentsMargins(10, 4, 10, 0);
    heading->setText((pocket ? QStringLiteral("<H5>") : QStringLiteral("<H1>"))
        + tr("Join us and stay informed<br>about our") + (pocket ? QStringLiteral("</H5>") : QStringLiteral("</H1>"))
        + (pocket ? QStringLiteral("<H4>") : QStringLiteral("<H2>")) + tr("   1. FREE APP Actions<br>")
        + tr("   2. APP Updates<br>") + tr("   3. New APPs<br>") + tr("   4. Important News<br>") + tr("   and more...")
        + (pocket ? QStringLiteral("</H4>") : QStringLiteral("</H2>")));

    // The share links decide here as well which networks are offered.
    struct Channel
    {
        const char* objectName;
        bool shown;
        void (JoinWidget::*slot)();
    };
    const Channel channels[] = {
        { "FaceBookJoinButton", !app->faceBookShareLink().isEmpty(), &JoinWidget::slotFaceBookClicked },
        { "TwitterJoinButton", !app->twitterShareLink().isEmpty(), &JoinWidget::slotTwitterClicked },
        { "VKontakteJoinButton", !app->vkontakteShareLink().isEmpty(), &JoinWidget::slotVKontakteClicked },
        { "EmailJoinButton", true, &JoinWidget::slotEmailClicked },
    };
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    buttons->setContentsMargins(10, 10, 10, 10);
    for (const Channel& channel : channels) {
        auto* button = new QPushButton(this);
        applyButtonProperties(button, QLatin1String(channel.objectName));
        button->setHidden(!channel.shown);
        connect(button, &QPushButton::clicked, this, channel.slot);
        buttons->addWidget(button);
    }

    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addLayout(buttons);
    row->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addLayout(row);
}

void JoinWidget::applyButtonProperties(QPushButton* button, const QString& objectName)
{
    TellWidget::applyButtonProperties(button, objectName);
}

QString JoinWidget::requestUrl(const QString& social) const
{
    return m_requestTemplate.arg(QCoreApplication::applicationName(), social);
}

void JoinWidget::open(const QString& social)
{
    QDesktopServices::openUrl(QUrl(requestUrl(social)));
}

void JoinWidget::slotFaceBookClicked()
{
    open(QStringLiteral("facebook"));
}

void JoinWidget::slotTwitterClicked()
{
    open(QStringLiteral("twitter"));
}

void JoinWidget::slotVKontakteClicked()
{
    open(QStringLiteral("vkontakte"));
}

void JoinWidget::slotEmailClicked()
{
    open(QStringLiteral("email"));
}

} // namespace QMWidgets
