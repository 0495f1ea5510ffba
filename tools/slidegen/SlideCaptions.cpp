#include "SlideCaptions.h"

#include <QStringList>

namespace {

struct Caption
{
    const char* title;
    const char* text;
};

// One row per slide; columns English, German, Russian.
const Caption kCaptions[SlideCaptions::SlideCount][3] = {
    { { "Learn the notes of the guitar neck",
          "The neck below, the staff above and the sound of every note: all in one window." },
        { "Lerne die Noten auf dem Gitarrenhals",
            "Unten der Hals, oben die Notenzeilen und der Klang jeder Note: alles in einem Fenster." },
        { "Выучите ноты на грифе гитары", "Внизу гриф, вверху нотный стан и звук каждой ноты: всё в одном окне." } },
    { { "Find a note on the neck",
          "Press on a fret: every place of that note lights up, the staff shows it and you hear it." },
        { "Finde eine Note auf dem Hals",
            "Drücke auf einen Bund: alle Stellen dieser Note leuchten auf, die Notenzeile zeigt sie, und du hörst "
            "sie." },
        { "Найдите ноту на грифе",
            "Нажмите на лад: загорятся все места этой ноты, нотный стан покажет её, и вы её услышите." } },
    { { "The staff and its signs",
          "Treble and bass clef show the note, with its sharp, flat or natural and its names in letters and solfege." },
        { "Die Notenzeilen und ihre Zeichen",
            "Violin- und Bassschlüssel zeigen die Note mit Kreuz, Be oder Auflöser und ihren Namen in Buchstaben und "
            "Solmisation." },
        { "Нотный стан и знаки",
            "Скрипичный и басовый ключи показывают ноту с диезом, бемолем или бекаром и её названия буквами и "
            "слогами." } },
    { { "Hear the notes", "Move the mouse over the staff to find the note on the neck; press the staff to hear it." },
        { "Höre die Noten",
            "Fahre mit der Maus über die Notenzeilen, um die Note auf dem Hals zu finden; ein Klick lässt sie "
            "erklingen." },
        { "Слушайте ноты", "Ведите мышью по нотному стану, чтобы найти ноту на грифе; нажмите, чтобы услышать её." } },
    { { "Train yourself",
          "Choose Training and press Start: the neck shows one place of a random note. Answer on the twelve keys." },
        { "Trainiere dich",
            "Wähle Training und drücke Start: der Hals zeigt eine Stelle einer zufälligen Note. Antworte mit den zwölf "
            "Tasten." },
        { "Тренируйтесь",
            "Выберите тренировку и нажмите «Start»: гриф покажет одно место случайной ноты. Отвечайте на двенадцати "
            "клавишах." } },
    { { "Your report",
          "Right and wrong answers are counted while the clock runs; the report shows them for every note." },
        { "Dein Bericht",
            "Richtige und falsche Antworten werden gezählt, während die Uhr läuft; der Bericht zeigt sie für jede "
            "Note." },
        { "Ваш отчёт", "Пока идут часы, считаются верные и неверные ответы; отчёт показывает их для каждой ноты." } },
    { { "The menu bar",
          "More: our other apps, shops and Wikipedia. The question mark opens this introduction; the menu button holds "
          "About and Quit." },
        { "Die Menüleiste",
            "More: unsere anderen Apps, Läden und Wikipedia. Das Fragezeichen öffnet diese Einführung; der Menüknopf "
            "enthält About und Quit." },
        { "Строка меню",
            "More: другие наши программы, магазины и Википедия. Вопрос открывает это введение; в кнопке меню есть "
            "About и Quit." } },
};

int languageIndex(const QString& language)
{
    const int index = SlideCaptions::languages().indexOf(language);
    return index < 0 ? 0 : index;
}

// The first slide's title on the other instruments; columns English, German, Russian.
struct InstrumentTitle
{
    const char* key;
    const char* titles[3];
};

const InstrumentTitle kInstrumentTitles[] = {
    { "Ukulele",
        { "Learn the notes of the ukulele neck", "Lerne die Noten auf dem Ukulelenhals",
            "Выучите ноты на грифе укулеле" } },
    { "Violin",
        { "Learn the notes of the violin fingerboard", "Lerne die Noten auf dem Griffbrett der Geige",
            "Выучите ноты на грифе скрипки" } },
    { "Bass",
        { "Learn the notes of the bass neck", "Lerne die Noten auf dem Basshals",
            "Выучите ноты на грифе бас-гитары" } },
    { "Balalaika",
        { "Learn the notes of the balalaika neck", "Lerne die Noten auf dem Balalaikahals",
            "Выучите ноты на грифе балалайки" } },
    { "Banjo",
        { "Learn the notes of the banjo neck", "Lerne die Noten auf dem Banjohals", "Выучите ноты на грифе банджо" } },
    { "Mandolin",
        { "Learn the notes of the mandolin neck", "Lerne die Noten auf dem Mandolinenhals",
            "Выучите ноты на грифе мандолины" } },
};

} // namespace

QStringList SlideCaptions::languages()
{
    return { QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("ru") };
}

QString SlideCaptions::title(int slide, const QString& language, const QString& instrument)
{
    if (slide < 0 || slide >= SlideCount)
        return QString();
    if (slide == 0) {
        for (const InstrumentTitle& row : kInstrumentTitles) {
            if (instrument == QLatin1String(row.key))
                return QString::fromUtf8(row.titles[languageIndex(language)]);
        }
    }
    return QString::fromUtf8(kCaptions[slide][languageIndex(language)].title);
}

QString SlideCaptions::text(int slide, const QString& language)
{
    if (slide < 0 || slide >= SlideCount)
        return QString();
    return QString::fromUtf8(kCaptions[slide][languageIndex(language)].text);
}
