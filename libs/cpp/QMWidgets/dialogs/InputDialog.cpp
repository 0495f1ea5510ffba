#include "InputDialog.h"

#include "App.h"
#include "Common.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

namespace QMWidgets {

InputDialog::InputDialog(const QString& label, QWidget* parent, const char* name, bool modal, Type type)
    : QDialog(parent)
{
    Q_UNUSED(name)
    setObjectName(QStringLiteral("InputDialog"));
    setModal(modal);

    m_spinBox = new QSpinBox(this);
    m_lineEdit = new QLineEdit(this);
    m_lineEdit->setFixedHeight(32);
    m_okButton = new QPushButton(tr("Ok"), this);
    // Kept out of translation on purpose: the word is the same in every catalogue.
    m_cancelButton = new QPushButton(QStringLiteral("Cancel"), this);
    Common::applyPushButtonDetails(m_okButton);
    Common::applyPushButtonDetails(m_cancelButton);
    connect(m_okButton, &QPushButton::clicked, this, &InputDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &InputDialog::reject);

    m_stack = new QStackedWidget(this);
    m_stack->addWidget(m_spinBox);
    m_stack->addWidget(m_lineEdit);

    const App* app = App::theApp();
    QBoxLayout* buttonsLayout = app && app->isPocketDevice() ? static_cast<QBoxLayout*>(new QVBoxLayout)
                                                             : static_cast<QBoxLayout*>(new QHBoxLayout);
    buttonsLayout->addStretch(1);
    buttonsLayout->addWidget(m_okButton);
    buttonsLayout->addWidget(m_cancelButton);

    auto* fieldLayout = new QVBoxLayout;
    fieldLayout->addWidget(new QLabel(label, this));
    fieldLayout->addWidget(m_stack);

    auto* mainLayout = new QVBoxLayout(this);
    mainLayout->setContentsMargins(10, 10, 10, 10);
    mainLayout->setSpacing(7);
    mainLayout->addLayout(fieldLayout);
    mainLayout->addLayout(buttonsLayout);

    m_okButton->setDefault(true);
    setType(type);
}

void InputDialog::setType(Type type)
{
    m_type = type;
    QWidget* field = type == Text ? static_cast<QWidget*>(m_lineEdit) : static_cast<QWidget*>(m_spinBox);
    m_stack->setCurrentWidget(field);
    field->setFocus();
}

InputDialog::Type InputDialog::type() const
{
    return m_type;
}

QSpinBox* InputDialog::valueWidget() const
{
    return m_spinBox;
}

QLineEdit* InputDialog::stringWidget() const
{
    return m_lineEdit;
}

QString InputDialog::getText(QWidget* parent, const QString& title, const QString& label, QLineEdit::EchoMode echo,
    const QString& text, bool* ok, const char* name)
{
    auto* dialog = new InputDialog(label, parent, name, false, Text);
    dialog->setWindowTitle(title);
    dialog->m_lineEdit->setEchoMode(echo);
    dialog->m_lineEdit->setText(text);
    dialog->m_lineEdit->setFocus();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (ok)
        *ok = accepted;
    const QString result = dialog->m_lineEdit->text();
    delete dialog;
    return result;
}

int InputDialog::getInteger(QWidget* parent, const QString& title, const QString& label, int value, int minValue,
    int maxValue, int step, bool* ok, const char* name)
{
    Q_UNUSED(step)
    auto* dialog = new InputDialog(label, parent, name, true, Integer);
    dialog->setWindowTitle(title);
    dialog->m_spinBox->setValue(value);
    dialog->m_spinBox->setRange(minValue, maxValue);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (ok)
        *ok = accepted;
    const int result = dialog->m_spinBox->value();
    delete dialog;
    return result;
}

} // namespace QMWidgets
