#include "ButtonsPanel.h"

#include "App.h"
#include "TuneButton.h"

#include <QHBoxLayout>
#include <QResizeEvent>
#include <QTimer>

namespace QMMusic {

ButtonsPanel::ButtonsPanel(QWidget* parent)
    : QFrame(parent)
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("TuneButtonsPanel"));
    m_timer->setInterval(repeatInterval);
    connect(m_timer, &QTimer::timeout, this, &ButtonsPanel::slotTimeOut);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addStretch(1);
    for (int key = 0; key < buttonCount; ++key) {
        auto* button = new TuneButton(this);
        button->setObjectName(QStringLiteral("TuneButton"));
        button->setFlat(true);
        button->setFixedSize(46, 46);
        button->hide();
        connect(button, &QPushButton::clicked, this, &ButtonsPanel::slotClicked);
        m_buttons.insert(key, button);
        layout->addWidget(button);
    }
    layout->addStretch(1);

    const QMWidgets::App* app = QMWidgets::App::theApp();
    slotSetRepeatMode(app && app->settingsValue(QStringLiteral("Repeat"), false).toBool());
}

TuneButton* ButtonsPanel::button(int key) const
{
    return m_buttons.value(key, nullptr);
}

bool ButtonsPanel::isRepeatMode() const
{
    return m_repeatMode;
}

QTimer* ButtonsPanel::repeatTimer() const
{
    return m_timer;
}

void ButtonsPanel::slotSetRepeatMode(bool on)
{
    m_repeatMode = on;
    for (TuneButton* button : qAsConst(m_buttons)) {
        button->setCheckable(on);
        button->update();
    }
    if (on)
        m_timer->start();
    else
        m_timer->stop();
}

void ButtonsPanel::slotClicked(bool checked)
{
    if (!m_repeatMode)
        return;
    // One checked button at most; a second click on it leaves none.
    for (TuneButton* button : qAsConst(m_buttons))
        button->setChecked(false);
    if (auto* clicked = qobject_cast<TuneButton*>(sender()))
        clicked->setChecked(checked);
}

void ButtonsPanel::slotTimeOut()
{
    for (TuneButton* button : qAsConst(m_buttons)) {
        if (button->isChecked()) {
            button->sendPlay();
            return;
        }
    }
}

void ButtonsPanel::resizeEvent(QResizeEvent* event)
{
    const int side = static_cast<int>(static_cast<float>(event->size().width()) / 6.5f);
    for (TuneButton* button : qAsConst(m_buttons))
        button->setFixedSize(side, side);
    QFrame::resizeEvent(event);
}

} // namespace QMMusic
