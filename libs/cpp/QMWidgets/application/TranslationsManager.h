#pragma once

#include <QObject>
#include <QString>

class QTranslator;

namespace QMWidgets {

// Chooses the interface language once, from the settings or the system
// locale, installs the catalogues of Qt, the libraries and the application
// for it, sets the layout direction and remembers the choice.
class TranslationsManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TranslationsManager)

public:
    static TranslationsManager* instance();

    void setTranslation(const QString& language);
    QString currentLanguage() const;
    void retranslate();

    void setQtTranslationsBase(const QString& base);
    void setAppTranslationsBase(const QString& base);
    void setLibsTranslationsBase(const QString& base);

    // The first known code that occurs in the text ("de_DE" gives "de"), else "en".
    static QString languageFor(const QString& localeOrCode);
    // The language a start chooses: the stored "Language", else the system locale.
    static QString initialLanguage();
    // The three catalogue resources for a language, in load order.
    QString qtCatalogue(const QString& language) const;
    QString libsCatalogue(const QString& language) const;
    QString appCatalogue(const QString& language) const;

private:
    explicit TranslationsManager(QObject* parent);

    QTranslator* m_qtTranslator = nullptr;
    QTranslator* m_libsTranslator = nullptr;
    QTranslator* m_appTranslator = nullptr;
    QString m_currentLanguage;
    QString m_appTranslationsBase;
    QString m_libsTranslationsBase;
    QString m_qtTranslationsBase;
};

} // namespace QMWidgets
