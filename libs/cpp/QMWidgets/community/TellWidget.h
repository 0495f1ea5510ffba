#pragma once

#include <QFrame>

class QPushButton;

namespace QMWidgets {

// Picture buttons that recommend the application on a social network or
// by mail. A network without a share link gets no button.
class TellWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TellWidget)

public:
    explicit TellWidget(QWidget* parent = nullptr);

    // A picture button of the panel: flat, 190 by 35, checkable, its picture
    // from the style sheet by object name.
    static void applyButtonProperties(QPushButton* button, const QString& objectName);

public slots:
    void slotFaceBookClicked();
    void slotTwitterClicked();
    void slotVKontakteClicked();
    void slotEmailClicked();
};

} // namespace QMWidgets
