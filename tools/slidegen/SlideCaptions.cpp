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

// Where another instrument's slide says something else than the guitar's;
// columns English, German, Russian. A null text keeps the guitar's.
struct InstrumentCaption
{
    const char* key;
    int slide;
    Caption captions[3];
};

const InstrumentCaption kInstrumentCaptions[] = {
    { "Ukulele", 0,
        { { "Learn the notes of the ukulele neck", nullptr }, { "Lerne die Noten auf dem Ukulelenhals", nullptr },
            { "Выучите ноты на грифе укулеле", nullptr } } },
    { "Violin", 0,
        { { "Learn the notes of the violin fingerboard", nullptr },
            { "Lerne die Noten auf dem Griffbrett der Geige", nullptr },
            { "Выучите ноты на грифе скрипки", nullptr } } },
    { "Bass", 0,
        { { "Learn the notes of the bass neck", nullptr }, { "Lerne die Noten auf dem Basshals", nullptr },
            { "Выучите ноты на грифе бас-гитары", nullptr } } },
    { "Balalaika", 0,
        { { "Learn the notes of the balalaika neck", nullptr }, { "Lerne die Noten auf dem Balalaikahals", nullptr },
            { "Выучите ноты на грифе балалайки", nullptr } } },
    { "Banjo", 0,
        { { "Learn the notes of the banjo neck", nullptr }, { "Lerne die Noten auf dem Banjohals", nullptr },
            { "Выучите ноты на грифе банджо", nullptr } } },
    { "Mandolin", 0,
        { { "Learn the notes of the mandolin neck", nullptr }, { "Lerne die Noten auf dem Mandolinenhals", nullptr },
            { "Выучите ноты на грифе мандолины", nullptr } } },
    { "Piano", 0,
        { { "Learn the notes of the piano keyboard",
              "The keyboard below, the staff above and the sound of every note: all in one window." },
            { "Lerne die Noten auf der Klaviertastatur",
                "Unten die Tastatur, oben die Notenzeilen und der Klang jeder Note: alles in einem Fenster." },
            { "Выучите ноты на клавиатуре фортепиано",
                "Внизу клавиатура, вверху нотный стан и звук каждой ноты: всё в одном окне." } } },
    { "Piano", 1,
        { { "Find a note on the keyboard", "Press a key: it lights up, the staff shows its note and you hear it." },
            { "Finde eine Note auf der Tastatur",
                "Drücke eine Taste: sie leuchtet auf, die Notenzeile zeigt ihre Note, und du hörst sie." },
            { "Найдите ноту на клавиатуре",
                "Нажмите на клавишу: она загорится, нотный стан покажет её ноту, и вы её услышите." } } },
    { "Piano", 3,
        { { nullptr, "Move the mouse over the staff to find the note on the keyboard; press the staff to hear it." },
            { nullptr,
                "Fahre mit der Maus über die Notenzeilen, um die Note auf der Tastatur zu finden; ein Klick lässt sie "
                "erklingen." },
            { nullptr,
                "Ведите мышью по нотному стану, чтобы найти ноту на клавиатуре; нажмите, чтобы услышать её." } } },
};

// The metronome's three slides; columns English, German, Russian.
const Caption kMetronomeCaptions[3][3] = {
    { { "Keep the beat", "The face swings its eyes on every beat; the bell rings at the start of each bar." },
        { "Halte den Takt",
            "Das Gesicht schwenkt bei jedem Schlag die Augen; die Glocke läutet zu Beginn jedes Takts." },
        { "Держите ритм", "Лицо поводит глазами на каждую долю; в начале каждого такта звенит колокольчик." } },
    { { "Choose the tempo",
          "Plus and minus change the beats per minute by one; a tempo name from Largo to Presto jumps there." },
        { "Wähle das Tempo",
            "Plus und Minus ändern die Schläge pro Minute um eins; ein Tempo von Largo bis Presto springt dorthin." },
        { "Выберите темп",
            "Плюс и минус меняют число ударов в минуту на один; название темпа от Largo до Presto переходит к "
            "нему." } },
    { { "Beats and silence",
          "Choose the beats per bar; the eye and the speaker switch the face and the sound off and on." },
        { "Schläge und Stille",
            "Wähle die Schläge pro Takt; Auge und Lautsprecher schalten Gesicht und Klang aus und ein." },
        { "Доли и тишина", "Выберите число долей в такте; глаз и динамик выключают и включают лицо и звук." } },
};

// The tuners' three slides; columns English, German, Russian.
const Caption kTunersCaptions[3][3] = {
    { { "Tune by ear", "Press a string's button to hear how it should sound; tune until the two sound as one." },
        { "Stimme nach Gehör",
            "Drücke die Taste einer Saite, um zu hören, wie sie klingen soll; stimme, bis beide wie eine klingen." },
        { "Настраивайте на слух",
            "Нажмите кнопку струны, чтобы услышать, как она должна звучать; настраивайте, пока оба звука не "
            "сольются." } },
    { { "Eleven instruments", "From the violin to the dombra: choose your instrument in the column on the left." },
        { "Elf Instrumente", "Von der Geige bis zur Dombra: wähle dein Instrument in der Spalte links." },
        { "Одиннадцать инструментов", "От скрипки до домбры: выберите свой инструмент в колонке слева." } },
    { { "Pitch and repeat",
          "Choose the concert pitch from 415 to 460 Hz; in repeat mode a chosen string sounds every second." },
        { "Stimmton und Wiederholung",
            "Wähle den Stimmton von 415 bis 460 Hz; im Wiederholmodus erklingt eine gewählte Saite jede Sekunde." },
        { "Строй и повтор",
            "Выберите строй от 415 до 460 Гц; в режиме повтора выбранная струна звучит каждую секунду." } },
};

// The chord program's three slides; columns English, German, Russian.
const Caption kChordsCaptions[3][3] = {
    { { "Pick a chord", "Choose the root and the kind: the neck, the tablature and the hand show how to play it." },
        { "Wähle einen Akkord",
            "Wähle Grundton und Art: Griffbild, Tabulatur und die Hand zeigen, wie er gespielt wird." },
        { "Выберите аккорд", "Выберите основной тон и вид: гриф, табулатура и рука покажут, как его играть." } },
    { { "Write your song",
          "Add chords below, click one to hear it, transpose the whole song and keep it as a favourite." },
        { "Schreibe dein Lied",
            "Füge unten Akkorde hinzu, klicke einen an, um ihn zu hören, transponiere das ganze Lied und bewahre es "
            "als "
            "Favorit auf." },
        { "Запишите свою песню",
            "Добавляйте аккорды внизу, нажмите на аккорд, чтобы услышать его, транспонируйте всю песню и сохраните её "
            "в "
            "избранном." } },
    { { "Eight instruments",
          "Guitar, bass, ukulele, mandolin, banjo, balalaika and piano: the chord and the song come along." },
        { "Acht Instrumente",
            "Gitarre, Bass, Ukulele, Mandoline, Banjo, Balalaika und Klavier: Akkord und Lied kommen mit." },
        { "Восемь инструментов",
            "Гитара, бас, укулеле, мандолина, банджо, балалайка и фортепиано: аккорд и песня остаются с вами." } },
};

// The instrument's own caption of a slide, if it has one.
const Caption* instrumentCaption(int slide, int language, const QString& instrument)
{
    if (instrument == QLatin1String("Metronome"))
        return slide < 3 ? &kMetronomeCaptions[slide][language] : nullptr;
    if (instrument == QLatin1String("Tuners"))
        return slide < 3 ? &kTunersCaptions[slide][language] : nullptr;
    if (instrument == QLatin1String("Chords"))
        return slide < 3 ? &kChordsCaptions[slide][language] : nullptr;
    for (const InstrumentCaption& row : kInstrumentCaptions) {
        if (row.slide == slide && instrument == QLatin1String(row.key))
            return &row.captions[language];
    }
    return nullptr;
}

} // namespace

QStringList SlideCaptions::languages()
{
    return { QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("ru") };
}

QString SlideCaptions::title(int slide, const QString& language, const QString& instrument)
{
    if (slide < 0 || slide >= SlideCount)
        return QString();
    const Caption* own = instrumentCaption(slide, languageIndex(language), instrument);
    return QString::fromUtf8(own && own->title ? own->title : kCaptions[slide][languageIndex(language)].title);
}

QString SlideCaptions::text(int slide, const QString& language, const QString& instrument)
{
    if (slide < 0 || slide >= SlideCount)
        return QString();
    const Caption* own = instrumentCaption(slide, languageIndex(language), instrument);
    return QString::fromUtf8(own && own->text ? own->text : kCaptions[slide][languageIndex(language)].text);
}
