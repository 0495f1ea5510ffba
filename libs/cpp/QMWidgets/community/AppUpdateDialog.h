#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QPixmap;

namespace QMWidgets {

// Tells whether a newer release exists and offers the updates page; its
// check box switches the automatic check at start on and off at once.
class AppUpdateDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(AppUpdateDialog)

public:
    explicit AppUpdateDialog(QWidget* parent = nullptr);

    void setMessage(const QString& message);
    void setPic(const QPixmap& picture);

    // The setting "checkupdates".
    static bool isChecked();
    static void setChecked(bool on);

public slots:
    void slotSetChecked(bool on);
    void slotUpdate();
    void slotCancel();

private:
    QCheckBox* m_checkBox = nullptr;
    QLabel* m_messageLabel = nullptr;
    QLabel* m_pictureLabel = nullptr;
};

} // namespace QMWidgets
