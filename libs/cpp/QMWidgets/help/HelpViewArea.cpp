#include "HelpViewArea.h"

#include "App.h"
#include "HelpDisplay.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalMapper>
#include <QTimer>
#include <QVBoxLayout>

namespace QMWidgets {

namespace {
// Numbers the slide buttons; the dialog is filled once per run, so the
// count is never reset.
int slideButtonCounter = 0;
} // namespace

HelpViewArea::HelpViewArea(QWidget* parent)
    : QFrame(parent)
    , m_timer(new QTimer(this))
    , m_display(new HelpDisplay(this))
    , m_buttonsLayout(new QHBoxLayout)
    , m_buttonGroup(new QButtonGroup(this))
    , m_mapper(new QSignalMapper(this))
{
    setObjectName(QStringLiteral("HelpViewArea"));

    m_timer->setInterval(SlideInterval);
    connect(m_timer, &QTimer::timeout, this, &HelpViewArea::slotShowNextSlide);
    connect(m_mapper, &QSignalMapper::mappedString, this, &HelpViewArea::slotShowSlide);

    const App* app = App::theApp();
    const bool pocket = app && app->isPocketDevice();
    m_display->setMinimumSize(pocket ? QSize(280, 220) : QSize(400, 300));

    m_buttonGroup->setExclusive(true);

    m_buttonsLayout->setContentsMargins(0, 0, 0, 0);
    m_buttonsLayout->setSpacing(3);
    auto* centredRow = new QHBoxLayout;
    centredRow->setContentsMargins(0, 0, 0, 0);
    centredRow->addStretch(1);
    centredRow->addLayout(m_buttonsLayout);
    centredRow->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_display);
    layout->addLayout(centredRow);
}

void HelpViewArea::addSlide(const QString& path)
{
    auto* button = new QPushButton(QString::number(++slideButtonCounter), this);
    button->setObjectName(QStringLiteral("HelpSlideButton"));
    button->setFixedSize(18, 18);
    button->setFlat(true);
    button->setCheckable(true);
    m_buttonGroup->addButton(button);
    m_buttonsLayout->addWidget(button);

    // Checking a button, by the timer or by hand, shows its slide; a click by
    // the user also ends the automatic show.
    connect(button, &QPushButton::toggled, m_mapper, qOverload<>(&QSignalMapper::map));
    connect(button, &QPushButton::clicked, this, &HelpViewArea::slotStopSlideShow);
    m_mapper->setMapping(button, path);
}

HelpDisplay* HelpViewArea::display() const
{
    return m_display;
}

bool HelpViewArea::isSlideShowRunning() const
{
    return m_timer->isActive();
}

void HelpViewArea::slotStartSlideShow()
{
    const QList<QAbstractButton*> buttons = m_buttonGroup->buttons();
    if (!m_buttonGroup->checkedButton() && !buttons.isEmpty())
        buttons.first()->setChecked(true);
    m_timer->start();
}

void HelpViewArea::slotStopSlideShow()
{
    m_timer->stop();
}

void HelpViewArea::slotShowNextSlide()
{
    const QList<QAbstractButton*> buttons = m_buttonGroup->buttons();
    if (buttons.isEmpty())
        return;
    const int next = (buttons.indexOf(m_buttonGroup->checkedButton()) + 1) % buttons.size();
    buttons.at(next)->setChecked(true);
}

void HelpViewArea::slotShowSlide(const QString& path)
{
    m_display->setSlide(path);
}

} // namespace QMWidgets
