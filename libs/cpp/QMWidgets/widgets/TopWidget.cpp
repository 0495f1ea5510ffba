#include "TopWidget.h"

#include "App.h"
#include "Common.h"
#include "IconLabel.h"
#include "TitleLabel.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QBitmap>
#include <QBoxLayout>
#include <QMovie>
#include <QPushButton>

namespace QMWidgets {

namespace {

QPushButton* makeTitleButton(QWidget* parent, const QString& objectName, const QString& toolTip)
{
    auto* button = new QPushButton(parent);
    Common::extend(button, objectName, toolTip);
    button->setFlat(true);
    button->setFixedSize(24, 24);
    return button;
}

} // namespace

TopWidget::TopWidget(bool overlay, QWidget* parent)
    : QFrame(parent, Qt::Window | Qt::FramelessWindowHint)
{
    m_titleLabel = new TitleLabel(this);
    Common::extend(m_titleLabel, QStringLiteral("TopWidgetTitle"), tr("Title"));
    m_titleLabel->setFixedHeight(28);
    m_titleLabel->setAlignment(Qt::AlignCenter);

    auto* texts = new TranslatedTexts(this, staticMetaObject.className());
    m_closeButton = makeTitleButton(m_titleLabel, QStringLiteral("TopWidgetClose"), QString());
    texts->setToolTip(m_closeButton, QT_TR_NOOP("Close"));
    m_maximizeButton = makeTitleButton(m_titleLabel, QStringLiteral("TopWidgetMaximize"), QString());
    texts->setToolTip(m_maximizeButton, QT_TR_NOOP("Maximize"));
    m_minimizeButton = makeTitleButton(m_titleLabel, QStringLiteral("TopWidgetMinimize"), QString());
    texts->setToolTip(m_minimizeButton, QT_TR_NOOP("Minimize"));
    m_iconLabel = new IconLabel(m_titleLabel);
    m_iconLabel->setFixedSize(24, 24);
    m_iconLabel->hide();

    connect(m_closeButton, &QPushButton::clicked, this, &TopWidget::reject);
    connect(m_maximizeButton, &QPushButton::clicked, this, &TopWidget::showMaximized);
    connect(m_minimizeButton, &QPushButton::clicked, this, &TopWidget::showMinimized);

    auto* titleRow = new QHBoxLayout(m_titleLabel);
    titleRow->setContentsMargins(1, 1, 1, 1);
    titleRow->setSpacing(1);
    if (App::isAppStore()) {
        // Window buttons on the left, in the manner of the Mac.
        titleRow->addWidget(m_closeButton);
        titleRow->addWidget(m_maximizeButton);
        titleRow->addWidget(m_minimizeButton);
        titleRow->addStretch(1);
        titleRow->addWidget(m_iconLabel);
        titleRow->addStretch(1);
    } else {
        titleRow->addWidget(m_iconLabel);
        titleRow->addStretch(1);
        titleRow->addWidget(m_minimizeButton);
        titleRow->addWidget(m_maximizeButton);
        titleRow->addWidget(m_closeButton);
    }

    if (overlay) {
        auto* inner = new QWidget(this);
        inner->setObjectName(QStringLiteral("TopOverWidget"));
        m_contentLayout = new QVBoxLayout(inner);
        m_contentLayout->setContentsMargins(0, 0, 0, 0);
        m_contentLayout->setSpacing(0);
        auto* outer = new QVBoxLayout(this);
        outer->setContentsMargins(0, 0, 0, 0);
        outer->setSpacing(0);
        outer->addWidget(m_titleLabel);
        outer->addWidget(inner);
    } else {
        m_contentLayout = new QVBoxLayout(this);
        m_contentLayout->setContentsMargins(1, 1, 1, 1);
        m_contentLayout->setSpacing(1);
        m_contentLayout->addWidget(m_titleLabel);
    }
}

QVBoxLayout* TopWidget::topLayout() const
{
    return m_contentLayout;
}

void TopWidget::setTitleLabel(const QString& title)
{
    m_titleLabel->setText(title);
}

void TopWidget::setTitleHeight(int height)
{
    m_titleLabel->setFixedHeight(height);
}

void TopWidget::setIcon(const QPixmap& pixmap)
{
    m_iconLabel->setIcon(pixmap.scaled(24, 24, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    m_iconLabel->show();
}

void TopWidget::hideClose()
{
    m_closeButton->hide();
}

void TopWidget::hideMaximize()
{
    m_maximizeButton->hide();
}

void TopWidget::hideMinimize()
{
    m_minimizeButton->hide();
}

void TopWidget::showClose()
{
    m_closeButton->show();
}

void TopWidget::showMaximize()
{
    m_maximizeButton->show();
}

void TopWidget::showMinimize()
{
    m_minimizeButton->show();
}

void TopWidget::setDecoration(QWidget* decoration, const QPoint& offset)
{
    m_titleLabel->setDecoration(decoration, offset);
}

void TopWidget::setDecoration(QMovie* movie, const QPoint& offset)
{
    if (!movie)
        return;
    movie->start();
    const QPixmap frame = movie->currentPixmap();
    auto* label = new QLabel;
    label->setAutoFillBackground(false);
    label->setFixedSize(frame.size());
    label->setMask(frame.mask());
    label->setMovie(movie);
    setDecoration(label, offset);
}

void TopWidget::setDecoration(const QPixmap& pixmap, const QPoint& offset)
{
    auto* label = new QLabel;
    label->setAutoFillBackground(false);
    label->setFixedSize(pixmap.size());
    label->setMask(pixmap.mask());
    label->setPixmap(pixmap);
    setDecoration(label, offset);
}

int TopWidget::exec()
{
    setAttribute(Qt::WA_ShowModal, true);
    show();
    if (!m_escapeAction) {
        m_escapeAction = new QAction(this);
        m_escapeAction->setShortcut(QKeySequence(Qt::Key_Escape));
        connect(m_escapeAction, &QAction::triggered, this, &TopWidget::reject);
        addAction(m_escapeAction);
    }
    const int result = m_loop.exec();
    hide();
    return result;
}

void TopWidget::accept()
{
    m_loop.exit(1);
}

void TopWidget::reject()
{
    if (m_loop.isRunning())
        m_loop.exit(0);
    else
        hide();
}

} // namespace QMWidgets
