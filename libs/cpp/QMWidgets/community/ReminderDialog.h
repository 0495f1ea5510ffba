#pragma once

#include <QDialog>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace QMWidgets {

// The base of the reminders that ask to rate, share or join: the logo, a
// text that the kind finishes, room for the kind's own widget and the row
// of "now", "later" and "never" buttons. state() tells how it ended.
class ReminderDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(ReminderDialog)

public:
    enum State
    {
        Closed = 0,
        Now = 1,
        Later = 2,
        Never = 3
    };

    explicit ReminderDialog(QWidget* parent = nullptr);

    int state() const;

public slots:
    void slotNow();
    void slotMaybeLater();
    void slotNeverAskMeAgain();

protected:
    void focusInEvent(QFocusEvent* event) override;
    // Ends the label's text that the base began.
    void finishText(const QString& text);

    QLabel* m_label = nullptr;
    int m_state = Closed;
    QPushButton* m_nowButton = nullptr;
    QPushButton* m_laterButton = nullptr;
    QPushButton* m_laterButton2 = nullptr;
    QPushButton* m_neverButton = nullptr;
    QHBoxLayout* m_extraLayout = nullptr;
    QLabel* m_logoLabel = nullptr;

private:
    void finish(int state);

    bool m_pocket = false;
};

} // namespace QMWidgets
