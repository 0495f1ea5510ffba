#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTextBrowser;

namespace QMWidgets {

// The about box: the application's picture, name, version and build date,
// and on demand the legal notices, in one window of one size.
class AboutDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(AboutDialog)

public:
    explicit AboutDialog(QWidget* parent = nullptr);

    // The rich text under the picture: name, version, build date, rights,
    // the maker's domain (a link unless a child uses the program) and logo.
    static QString infoText(const QString& applicationName, const QString& version, const QDate& buildDate,
        const QString& domain, const QString& homePage, bool kidsMode);

    // Shows the picture and the info (true) or the legal notices (false)
    // and keeps the window at the size it had.
    void setMainInfoVisible(bool visible);

public slots:
    void slotLegalNoticesClicked();
    void slotOkClicked();

private:
    QLabel* m_logoLabel = nullptr;
    QTextBrowser* m_noticesBrowser = nullptr;
    QLabel* m_infoLabel = nullptr;
    QPushButton* m_noticesButton = nullptr;
};

} // namespace QMWidgets
