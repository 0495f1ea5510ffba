#include "ListenSwitch.h"

#include "PitchListener.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace QMMusic {

namespace {

// The lamp glows red while the microphone is open and is a dark glass bead otherwise.
const char* const s_lampOn = "QLabel#ListenLamp { border-radius: 6px; border: 1px solid rgb(70,32,12);"
                             " background: qradialgradient(cx:0.4, cy:0.4, radius:0.6, fx:0.35, fy:0.35,"
                             " stop:0 rgb(255,190,150), stop:0.5 rgb(225,60,30), stop:1 rgb(130,20,10)); }";
const char* const s_lampOff = "QLabel#ListenLamp { border-radius: 6px; border: 1px solid rgb(70,32,12);"
                              " background: qradialgradient(cx:0.4, cy:0.4, radius:0.6, fx:0.35, fy:0.35,"
                              " stop:0 rgb(150,130,120), stop:1 rgb(60,48,40)); }";

} // namespace

ListenSwitch::ListenSwitch(const char* context, const char* text, QWidget* parent)
    : QFrame(parent)
    , m_context(context)
    , m_text(text)
{
    setObjectName(QStringLiteral("ListenSwitch"));
    m_listener = new QMMultiMedia::PitchListener(this);
    connect(m_listener, &QMMultiMedia::PitchListener::listeningChanged, this, &ListenSwitch::slotListeningChanged);
    connect(m_listener, &QMMultiMedia::PitchListener::failed, this, &ListenSwitch::slotFailed);

    m_button = new QPushButton(QCoreApplication::translate(context, text), this);
    m_button->setObjectName(QStringLiteral("PanelButton"));
    m_button->setFlat(true);
    m_button->setCheckable(true);
    m_button->setMinimumHeight(32);
    // Greyed when disabled, over whatever look the button's object name gives it.
    m_button->setStyleSheet(QStringLiteral("QPushButton:disabled { color: rgb(110,110,110); }"));
    connect(m_button, &QPushButton::toggled, this, &ListenSwitch::slotSetOn);

    m_lamp = new QLabel(this);
    m_lamp->setObjectName(QStringLiteral("ListenLamp"));
    m_lamp->setFixedSize(12, 12);
    slotListeningChanged(false);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_lamp);
    layout->addWidget(m_button);

    const QString reason = QMMultiMedia::PitchListener::unavailableReason();
    if (!reason.isEmpty())
        disableWithReason(reason);
}

QPushButton* ListenSwitch::button() const
{
    return m_button;
}

QMMultiMedia::PitchListener* ListenSwitch::listener() const
{
    return m_listener;
}

bool ListenSwitch::isListening() const
{
    return m_listener->isListening();
}

void ListenSwitch::slotSetOn(bool on)
{
    const bool open = on && m_button->isEnabled();
    if (m_button->isChecked() != open) {
        // toggled() brings us back here with the button in step.
        m_button->setChecked(open);
        return;
    }
    if (open)
        m_listener->start();
    else
        m_listener->stop();
}

void ListenSwitch::slotListeningChanged(bool listening)
{
    m_lamp->setStyleSheet(QLatin1String(listening ? s_lampOn : s_lampOff));
    m_lamp->setToolTip(listening ? tr("The microphone is open") : tr("The microphone is closed"));
}

void ListenSwitch::slotFailed()
{
    m_failedToOpen = true;
    disableWithReason(unavailableReason());
}

QString ListenSwitch::unavailableReason() const
{
    const QString reason = QMMultiMedia::PitchListener::unavailableReason();
    if (reason.isEmpty() && m_failedToOpen)
        return tr("The microphone could not be opened.");
    return reason;
}

void ListenSwitch::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void ListenSwitch::retranslate()
{
    m_button->setText(QCoreApplication::translate(m_context, m_text));
    slotListeningChanged(isListening());
    if (!m_button->isEnabled())
        disableWithReason(unavailableReason());
}

void ListenSwitch::disableWithReason(const QString& reason)
{
    m_button->setChecked(false);
    m_button->setEnabled(false);
    m_button->setToolTip(reason);
    setToolTip(reason);
}

} // namespace QMMusic
