#include "MMessageBox.h"

#include "App.h"
#include "Common.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>

namespace QMWidgets {

namespace {

bool isPocketDevice()
{
    const App* app = App::theApp();
    return app && app->isPocketDevice();
}

} // namespace

MMessageBox::MMessageBox(Icon icon, const QString& title, const QString& text, int buttons, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("MessageBox"));
    setMinimumSize(300, 200);
    setWindowTitle(title);

    m_textLabel = new QLabel(text, this);
    m_textLabel->setWordWrap(true);

    const QPixmap pixmap = MMessageBox::icon(icon);
    m_iconLabel = new QLabel(this);
    m_iconLabel->setPixmap(pixmap);
    // The picture's size on screen: a picture for a high-density screen has
    // more pixels than it covers.
    const QSize shown = pixmap.isNull() ? QSize() : (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
    m_iconLabel->setFixedSize(shown.width() + 5, shown.height() + 5);

    QBoxLayout* buttonsLayout
        = isPocketDevice() ? static_cast<QBoxLayout*>(new QVBoxLayout) : static_cast<QBoxLayout*>(new QHBoxLayout);
    buttonsLayout->setContentsMargins(1, 1, 1, 1);
    buttonsLayout->setSpacing(3);
    buttonsLayout->addStretch(1);

    using Slot = void (MMessageBox::*)();
    struct ButtonEntry
    {
        QMessageBox::StandardButton bit;
        QString text;
        Slot slot;
    };
    // The order of this table is the order on the screen.
    const ButtonEntry entries[] = {
        { QMessageBox::Ok, tr("Ok"), &MMessageBox::slotOk },
        { QMessageBox::Cancel, tr("Cancel"), &MMessageBox::slotCancel },
        { QMessageBox::No, tr("No"), &MMessageBox::slotNo },
        { QMessageBox::Yes, tr("Yes"), &MMessageBox::slotYes },
        { QMessageBox::Abort, tr("Abort"), &MMessageBox::slotAbort },
        { QMessageBox::Retry, tr("Retry"), &MMessageBox::slotRetry },
        { QMessageBox::Ignore, tr("Ignore"), &MMessageBox::slotIgnore },
        { QMessageBox::YesToAll, tr("YesAll"), &MMessageBox::slotYesAll },
        { QMessageBox::NoToAll, tr("NoAll"), &MMessageBox::slotNoAll },
    };
    for (const ButtonEntry& entry : entries) {
        if (!(buttons & entry.bit))
            continue;
        auto* button = new QPushButton(entry.text, this);
        Common::applyPushButtonDetails(button);
        connect(button, &QPushButton::clicked, this, entry.slot);
        buttonsLayout->addWidget(button);
    }
    buttonsLayout->addStretch(1);

    auto* headLayout = new QHBoxLayout;
    headLayout->setContentsMargins(1, 1, 1, 1);
    headLayout->setSpacing(1);
    headLayout->addWidget(m_iconLabel);
    headLayout->addWidget(m_textLabel);

    auto* mainLayout = new QVBoxLayout(this);
    mainLayout->setContentsMargins(5, 5, 5, 5);
    mainLayout->setSpacing(5);
    mainLayout->addLayout(headLayout);
    mainLayout->addLayout(buttonsLayout);
}

QPixmap MMessageBox::icon(Icon icon)
{
    QStyle::StandardPixmap standard;
    switch (icon) {
    case Information:
        standard = QStyle::SP_MessageBoxInformation;
        break;
    case Warning:
        standard = QStyle::SP_MessageBoxWarning;
        break;
    case Critical:
        standard = QStyle::SP_MessageBoxCritical;
        break;
    case Question:
        standard = QStyle::SP_MessageBoxQuestion;
        break;
    default:
        return QPixmap();
    }
    QStyle* style = QApplication::style();
    const int extent = style->pixelMetric(QStyle::PM_MessageBoxIconSize);
    return style->standardIcon(standard).pixmap(extent, extent);
}

int MMessageBox::run(Icon icon, QWidget* parent, const QString& title, const QString& text, int button0)
{
    auto* box = new MMessageBox(icon, title, text, button0, parent);
    const int result = box->exec();
    // With a parent the box lives on as its child; without one nobody else
    // could ever delete it.
    if (!parent)
        delete box;
    return result;
}

int MMessageBox::critical(QWidget* parent, const QString& title, const QString& text, int button0, int)
{
    return run(Critical, parent, title, text, button0);
}

int MMessageBox::information(QWidget* parent, const QString& title, const QString& text, int button0, int)
{
    return run(Information, parent, title, text, button0);
}

int MMessageBox::question(QWidget* parent, const QString& title, const QString& text, int button0, int)
{
    return run(Question, parent, title, text, button0);
}

int MMessageBox::warning(QWidget* parent, const QString& title, const QString& text, int button0, int)
{
    return run(Warning, parent, title, text, button0);
}

void MMessageBox::slotOk()
{
    done(QMessageBox::Ok);
}

void MMessageBox::slotCancel()
{
    done(QMessageBox::Cancel);
}

void MMessageBox::slotNo()
{
    done(QMessageBox::No);
}

void MMessageBox::slotYes()
{
    done(QMessageBox::Yes);
}

void MMessageBox::slotAbort()
{
    done(QMessageBox::Abort);
}

void MMessageBox::slotRetry()
{
    done(QMessageBox::Retry);
}

void MMessageBox::slotIgnore()
{
    done(QMessageBox::Ignore);
}

void MMessageBox::slotYesAll()
{
    done(QMessageBox::YesToAll);
}

void MMessageBox::slotNoAll()
{
    done(QMessageBox::NoToAll);
}

} // namespace QMWidgets
