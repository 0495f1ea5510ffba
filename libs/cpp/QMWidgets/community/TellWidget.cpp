#include "TellWidget.h"

#include "App.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets {

TellWidget::TellWidget(QWidget* parent)
    : QFrame(parent)
{
    const App* app = App::theApp();
    struct Channel
    {
        const char* objectName;
        QString link;
        void (TellWidget::*slot)();
    };
    const Channel channels[] = {
        { "FaceBookShareButton", app->faceBookShareLink(), &TellWidget::slotFaceBookClicked },
        { "TwitterShareButton", app->twitterShareLink(), &TellWidget::slotTwitterClicked },
        { "VKontakteShareButton", app->vkontakteShareLink(), &TellWidget::slotVKontakteClicked },
        { "EmailShareButton", QStringLiteral("mailto:"), &TellWidget::slotEmailClicked },
    };

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(6);
    layout->setContentsMargins(10, 10, 10, 10);
    for (const Channel& channel : channels) {
        auto* button = new QPushButton(this);
        applyButtonProperties(button, QLatin1String(channel.objectName));
        button->setHidden(channel.link.isEmpty());
        connect(button, &QPushButton::clicked, this, channel.slot);
        layout->addWidget(button);
    }
}

void TellWidget::applyButtonProperties(QPushButton* button, const QString& objectName)
{
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setFixedSize(190, 35);
    button->setCheckable(true);
}

void TellWidget::slotFaceBookClicked()
{
    QDesktopServices::openUrl(QUrl(App::theApp()->faceBookShareLink()));
}

void TellWidget::slotTwitterClicked()
{
    QDesktopServices::openUrl(QUrl(App::theApp()->twitterShareLink()));
}

void TellWidget::slotVKontakteClicked()
{
    QDesktopServices::openUrl(QUrl(App::theApp()->vkontakteShareLink()));
}

void TellWidget::slotEmailClicked()
{
    App::theApp()->slotTellFriend();
}

} // namespace QMWidgets
