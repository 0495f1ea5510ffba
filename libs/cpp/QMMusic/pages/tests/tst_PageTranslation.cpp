#include "App.h"
#include "CorvaneProducts.h"
#include "GuitarTonariumMainPage.h"
#include "TranslationsManager.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

using QMWidgets::App;
using QMWidgets::TranslationsManager;

namespace {

// Every text of the page a user can see or point at, by where it sits.
QMap<QString, QString> pageTexts(QWidget& page)
{
    QMap<QString, QString> texts;
    const auto place = [](const QObject* object, const char* what) {
        return QString::asprintf("%s %p %s", object->metaObject()->className(), static_cast<const void*>(object), what);
    };
    const auto plain = [](const QString& text) {
        QTextDocument document;
        document.setHtml(text);
        return document.toPlainText().trimmed();
    };
    texts.insert(place(&page, "title"), page.windowTitle());
    QList<QWidget*> widgets = page.findChildren<QWidget*>();
    widgets.prepend(&page);
    for (QWidget* widget : qAsConst(widgets)) {
        texts.insert(place(widget, "tool tip"), plain(widget->toolTip()));
        if (auto* label = qobject_cast<QLabel*>(widget))
            texts.insert(place(widget, "text"), plain(label->text()));
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            texts.insert(place(widget, "text"), button->text());
        for (QAction* action : widget->actions()) {
            texts.insert(place(action, "text"), action->text());
            texts.insert(place(action, "tool tip"), plain(action->toolTip()));
        }
    }
    return texts;
}

// English that stays: names of notes and of the maker's programs, and the
// texts that are fixed in every language (the counters, the keys, the first
// Start, Favorites).
bool staysEnglish(const QString& text)
{
    static const QRegularExpression noLetters(QStringLiteral("^[^A-Za-z]*$"));
    static const QRegularExpression note(QStringLiteral("^[#\\x{266D}]?[A-G][#\\x{266D}]?\\d?( \\(.*\\))?$"));
    static const QRegularExpression key(QStringLiteral("^[A-G](#\\n[A-G]\\x{266D}|\\n\\((do|re|mi|fa|sol|la|si)\\))$"));
    static const QRegularExpression counter(QStringLiteral("^(Right|Wrong):\\d*$"));
    static const QRegularExpression program(
        QStringLiteral("Tonarium|^Timecode Reader$|^Chord Transposer$|^Sound Recorder$"));
    static const QStringList fixed { QStringLiteral("Start"), QStringLiteral("Favorites") };
    return noLetters.match(text).hasMatch() || note.match(text).hasMatch() || key.match(text).hasMatch()
        || counter.match(text).hasMatch() || program.match(text).hasMatch() || fixed.contains(text);
}

} // namespace

class TestPageTranslation : public QObject
{
    Q_OBJECT

private slots:
    void pageSpeaksTheLanguage_data();
    void pageSpeaksTheLanguage();
};

void TestPageTranslation::pageSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    // Words that the language writes as English does.
    QTest::addColumn<QStringList>("same");

    QTest::newRow("German") << "de" << QStringList { "Training", "Wikipedia" };
    QTest::newRow("Russian") << "ru" << QStringList();
}

// The page is built in English, as at start, before the catalogues are
// loaded; once they are, no text of it is still English but those that stay.
void TestPageTranslation::pageSpeaksTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QStringList, same);

    TranslationsManager::instance()->setTranslation(QStringLiteral("en"));
    QMMusic::GuitarTonariumMainPage page;
    QMWidgets::CorvaneProducts::addTo(page.promoMenuBar());
    page.addShopMenu();
    page.setWindowTitle(QCoreApplication::applicationName());
    const QMap<QString, QString> english = pageTexts(page);

    // The application hands the change to its windows as posted events.
    TranslationsManager::instance()->setTranslation(language);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    const QMap<QString, QString> translated = pageTexts(page);
    QStringList stillEnglish;
    int checked = 0;
    for (auto it = english.constBegin(); it != english.constEnd(); ++it) {
        if (staysEnglish(it.value()) || same.contains(it.value()))
            continue;
        ++checked;
        if (translated.value(it.key()) == it.value())
            stillEnglish.append(it.value());
    }
    QVERIFY2(stillEnglish.isEmpty(), qPrintable(stillEnglish.join(QStringLiteral(" | "))));
    QVERIFY(checked > 20);
    qInfo("%d texts checked", checked);
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    TestPageTranslation test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PageTranslation.moc"
