#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QAbstractButton;
class QAction;
class QLabel;
class QWidget;

namespace QMWidgets {

// Keeps the texts of a widget in the language of the installed catalogues.
// A page is built before the catalogues are loaded at start; each text set
// through this object is translated now and again at every language change
// that reaches its owner, in the translation context given.
class TranslatedTexts : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TranslatedTexts)

public:
    // `context` is the class name that lupdate gives the texts, usually
    // `staticMetaObject.className()` of the owner's class.
    TranslatedTexts(QWidget* owner, const char* context);

    // Mark the source texts with QT_TR_NOOP so that lupdate finds them.
    void setText(QAction* action, const char* source);
    void setText(QAbstractButton* button, const char* source);
    void setText(QLabel* label, const char* source);
    void setToolTip(QWidget* widget, const char* source);

    void retranslate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Property
    {
        ActionText,
        ButtonText,
        LabelText,
        ToolTip
    };
    struct Entry
    {
        QPointer<QObject> target;
        const char* source;
        Property property;
    };

    void add(QObject* target, const char* source, Property property);
    void apply(const Entry& entry) const;

    const char* m_context;
    QVector<Entry> m_entries;
};

} // namespace QMWidgets
