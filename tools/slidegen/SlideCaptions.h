#pragma once

#include <QString>

// The title and text of each introduction slide in the slide languages.
class SlideCaptions
{
public:
    static constexpr int SlideCount = 7;

    // The languages slides are made for: "en", "de", "ru".
    static QStringList languages();
    // On the page of an instrument ("Guitar", "Ukulele", ...): the first
    // slide names it, and the piano's speak of keys.
    static QString title(int slide, const QString& language, const QString& instrument);
    static QString text(int slide, const QString& language, const QString& instrument);
};
