#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QWidget>

// Answers the next modal window that the code under test opens (its exec()
// blocks the test's own call), of the given class if one is named: notes
// its class and texts, then clicks the visible button with the given text,
// or closes it when none is given.
class ModalAnswerer : public QObject
{
public:
    explicit ModalAnswerer(const QString& buttonText = QString(), const char* className = nullptr)
        : m_buttonText(buttonText)
        , m_wanted(className)
    {
        connect(&m_poll, &QTimer::timeout, this, [this]() { answer(); });
        m_poll.start(10);
    }

    bool answered() const { return !m_className.isEmpty(); }
    QString className() const { return m_className; }
    QString texts() const { return m_texts; }
    QString windowTitle() const { return m_windowTitle; }

private:
    void answer()
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible() || (m_wanted && !modal->inherits(m_wanted)))
            return;
        m_poll.stop();
        m_className = QLatin1String(modal->metaObject()->className());
        m_windowTitle = modal->windowTitle();
        for (const QLabel* label : modal->findChildren<QLabel*>())
            m_texts += label->text() + QLatin1Char('\n');
        for (QAbstractButton* button : modal->findChildren<QAbstractButton*>()) {
            if (!m_buttonText.isEmpty() && button->text() == m_buttonText && button->isVisible()) {
                button->click();
                return;
            }
        }
        modal->close();
    }

    QString m_buttonText;
    const char* m_wanted = nullptr;
    QTimer m_poll;
    QString m_className;
    QString m_texts;
    QString m_windowTitle;
};
