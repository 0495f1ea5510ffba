#pragma once

#include <QDialog>
#include <QLineEdit>

class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace QMWidgets {

// A small themed dialog asking for one whole number or one line of text.
class InputDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(InputDialog)

public:
    enum Type
    {
        Integer = 0,
        Text = 1
    };

    // name is accepted for call compatibility; the object name stays
    // "InputDialog" so that the style sheet finds the dialog.
    explicit InputDialog(const QString& label, QWidget* parent = nullptr, const char* name = nullptr, bool modal = true,
        Type type = Integer);

    void setType(Type type);
    Type type() const;
    QSpinBox* valueWidget() const;
    QLineEdit* stringWidget() const;

    // Both report a cancelled dialog only through *ok and still return the
    // field's content.
    static QString getText(QWidget* parent, const QString& title, const QString& label,
        QLineEdit::EchoMode echo = QLineEdit::Normal, const QString& text = QString(), bool* ok = nullptr,
        const char* name = nullptr);
    // The value is set before the range, so it is first clamped by the spin
    // box's default range of 0 to 99; step is not used.
    static int getInteger(QWidget* parent, const QString& title, const QString& label, int value = 0,
        int minValue = -2147483647, int maxValue = 2147483647, int step = 1, bool* ok = nullptr,
        const char* name = nullptr);

private:
    QSpinBox* m_spinBox = nullptr;
    QLineEdit* m_lineEdit = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QStackedWidget* m_stack = nullptr;
    Type m_type = Integer;
};

} // namespace QMWidgets
