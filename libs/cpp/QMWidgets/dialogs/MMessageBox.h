#pragma once

#include <QDialog>
#include <QPixmap>

class QLabel;

namespace QMWidgets {

// The themed message box: icon, word-wrapped text and a row of buttons, each
// of which closes the box with its QMessageBox::StandardButton bit as result.
class MMessageBox : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(MMessageBox)

public:
    enum Icon
    {
        NoIcon = 0,
        Information = 1,
        Warning = 2,
        Critical = 3,
        Question = 4
    };

    // buttons holds QMessageBox::StandardButton bits; the buttons stand in a
    // fixed order whatever the order of the bits (No before Yes).
    MMessageBox(Icon icon, const QString& title, const QString& text, int buttons, QWidget* parent = nullptr);

    static QPixmap icon(Icon icon);

    // Each runs a box with button0 alone and returns its result; button1 is
    // accepted for call compatibility and ignored. The box stays a child of
    // parent.
    static int critical(QWidget* parent, const QString& title, const QString& text, int button0, int button1 = 0);
    static int information(QWidget* parent, const QString& title, const QString& text, int button0, int button1 = 0);
    static int question(QWidget* parent, const QString& title, const QString& text, int button0, int button1 = 0);
    static int warning(QWidget* parent, const QString& title, const QString& text, int button0, int button1 = 0);

private slots:
    void slotOk();
    void slotCancel();
    void slotNo();
    void slotYes();
    void slotAbort();
    void slotRetry();
    void slotIgnore();
    void slotYesAll();
    void slotNoAll();

private:
    static int run(Icon icon, QWidget* parent, const QString& title, const QString& text, int button0);

    QLabel* m_textLabel = nullptr;
    QLabel* m_iconLabel = nullptr;
};

} // namespace QMWidgets
