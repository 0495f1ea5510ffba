#pragma once

#include <QString>

// The title and text of each introduction slide in the slide languages.
class SlideCaptions
{
public:
    static constexpr int SlideCount = 7;

    // The languages slides are made for: "en", "de", "ru".
    static QStringList languages();
    // The first slide names the instrument ("Guitar", "Ukulele", ...).
    static QString title(int slide, const QString& language, const QString& instrument);
    static QString text(int slide, const QString& language);
};
