#include "TranslatedTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QWidget>

namespace QMWidgets {

TranslatedTexts::TranslatedTexts(QWidget* owner, const char* context)
    : QObject(owner)
    , m_context(context)
{
    owner->installEventFilter(this);
}

void TranslatedTexts::setText(QAction* action, const char* source)
{
    add(action, source, Property::ActionText);
}

void TranslatedTexts::setText(QAbstractButton* button, const char* source)
{
    add(button, source, Property::ButtonText);
}

void TranslatedTexts::setText(QLabel* label, const char* source)
{
    add(label, source, Property::LabelText);
}

void TranslatedTexts::setToolTip(QWidget* widget, const char* source)
{
    add(widget, source, Property::ToolTip);
}

void TranslatedTexts::retranslate()
{
    for (const Entry& entry : qAsConst(m_entries))
        apply(entry);
}

bool TranslatedTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == parent())
        retranslate();
    return QObject::eventFilter(watched, event);
}

void TranslatedTexts::add(QObject* target, const char* source, Property property)
{
    if (!target)
        return;
    m_entries.append({ target, source, property });
    apply(m_entries.constLast());
}

void TranslatedTexts::apply(const Entry& entry) const
{
    if (!entry.target)
        return;
    const QString text = QCoreApplication::translate(m_context, entry.source);
    switch (entry.property) {
    case Property::ActionText:
        static_cast<QAction*>(entry.target.data())->setText(text);
        break;
    case Property::ButtonText:
        static_cast<QAbstractButton*>(entry.target.data())->setText(text);
        break;
    case Property::LabelText:
        static_cast<QLabel*>(entry.target.data())->setText(text);
        break;
    case Property::ToolTip:
        static_cast<QWidget*>(entry.target.data())->setToolTip(text);
        break;
    }
}

} // namespace QMWidgets
