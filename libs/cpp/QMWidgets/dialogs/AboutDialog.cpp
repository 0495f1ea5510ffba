#include "AboutDialog.h"

#include "App.h"
#include "Common.h"
#include "CorvaneSite.h"

#include <QDate>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace QMWidgets {

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent,
        Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::CustomizeWindowHint
            | Qt::WindowCloseButtonHint)
    , m_logoLabel(new QLabel(this))
    , m_noticesBrowser(new QTextBrowser(this))
    , m_infoLabel(new QLabel(this))
    , m_noticesButton(new QPushButton(tr("&Legal Notices"), this))
{
    setObjectName(QStringLiteral("AboutDialog"));
    setWindowTitle(QCoreApplication::applicationName() + tr(" Info"));

    m_logoLabel->setObjectName(QStringLiteral("LogoLabel"));
    m_logoLabel->setFixedSize(290, 290);
    m_logoLabel->setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
    m_logoLabel->setLineWidth(5);
    m_logoLabel->setAutoFillBackground(true);

    auto* okButton = new QPushButton(tr("&Ok"), this);
    Common::applyPushButtonDetails(m_noticesButton);
    Common::applyPushButtonDetails(okButton);
    connect(m_noticesButton, &QPushButton::clicked, this, &AboutDialog::slotLegalNoticesClicked);
    connect(okButton, &QPushButton::clicked, this, &AboutDialog::slotOkClicked);

    m_noticesBrowser->setReadOnly(true);
    m_noticesBrowser->setOpenExternalLinks(true);
    m_noticesBrowser->hide();

    const App* app = App::theApp();
    m_infoLabel->setStyleSheet(QStringLiteral("background: black;"));
    m_infoLabel->setOpenExternalLinks(true);
    m_infoLabel->setFixedHeight(85);
    m_infoLabel->setText(infoText(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
        app ? app->buildDate() : QDate(), QLatin1String(CorvaneSite::domain), QLatin1String(CorvaneSite::webHost),
        app && app->isKidsMode()));

    auto* logoRow = new QHBoxLayout;
    logoRow->addStretch(1);
    logoRow->addWidget(m_logoLabel);
    logoRow->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(5);
    layout->addLayout(logoRow);
    layout->addWidget(m_infoLabel);
    layout->addWidget(m_noticesBrowser);
    layout->addWidget(m_noticesButton, 0, Qt::AlignHCenter);
    layout->addWidget(okButton, 0, Qt::AlignHCenter);

    okButton->setFocus();
}

QString AboutDialog::infoText(const QString& applicationName, const QString& version, const QDate& buildDate,
    const QString& domain, const QString& homePage, bool kidsMode)
{
    QString text = QStringLiteral("<BODY BGCOLOR=#000000><FONT COLOR=#00A0E0 SIZE=2><CENTER>");
    text += applicationName + QStringLiteral(" v") + version + QStringLiteral(" Build: ")
        + buildDate.toString(QStringLiteral("dd.MM.yyyy"));
    text += QStringLiteral("<BR>Copyright &copy; ") + buildDate.toString(QStringLiteral("yyyy"))
        + QStringLiteral(" CORVANE. All rights reserved.<BR>");
    // A child gets no link out of the application.
    if (kidsMode)
        text += domain + QStringLiteral("<BR>");
    else
        // A light blue of its own: the default link blue vanishes on black.
        text += QStringLiteral("<A STYLE=\"color:#80C8F0\" HREF=\"") + homePage + QStringLiteral("\">") + domain
            + QStringLiteral("</A><BR>");
    text += QStringLiteral("<IMG SRC=\":/pix/corvanelogo.png\"></CENTER>");
    return text;
}

void AboutDialog::setMainInfoVisible(bool visible)
{
    const QSize currentSize = size();
    m_infoLabel->setVisible(visible);
    m_logoLabel->setVisible(visible);
    m_noticesBrowser->setVisible(!visible);
    if (visible) {
        m_noticesButton->setText(tr("&Legal Notices"));
    } else {
        m_noticesButton->setText(tr("&Hide"));
        const App* app = App::theApp();
        m_noticesBrowser->setHtml(QStringLiteral("<BODY><CENTER>") + (app ? app->legalNotices() : QString())
            + QStringLiteral("</CENTER></BODY>"));
    }
    // The window keeps the size it had, so it doesn't jump between views.
    setFixedSize(currentSize);
}

void AboutDialog::slotLegalNoticesClicked()
{
    setMainInfoVisible(m_logoLabel->isHidden());
}

void AboutDialog::slotOkClicked()
{
    close();
    setMainInfoVisible(true);
}

} // namespace QMWidgets
