#pragma once

#include <QFrame>

class QPushButton;

namespace QMWidgets {

// An invitation to follow the maker: a heading and picture buttons that
// open the maker's page with the application and the channel named, which
// takes the user on to the channel.
class JoinWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(JoinWidget)

public:
    explicit JoinWidget(QWidget* parent = nullptr);

    // A picture button of the panel: flat, 190 by 35, checkable, its picture
    // from the style sheet by object name.
    static void applyButtonProperties(QPushButton* button, const QString& objectName);
    // The page for a channel ("facebook", "twitter", "vkontakte", "email").
    QString requestUrl(const QString& social) const;

public slots:
    void slotFaceBookClicked();
    void slotTwitterClicked();
    void slotVKontakteClicked();
    void slotEmailClicked();

private:
    void open(const QString& social);

    QString m_requestTemplate;
};

} // namespace QMWidgets
