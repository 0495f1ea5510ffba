#pragma once

#include <QString>
#include <QVector>

namespace QMWidgets {

// The libraries and fonts beyond Qt that the programs use or whose output
// they ship (the music font's glyphs in the pictures, the encoder's samples),
// each with its licence and home page, for the about box.
class ThirdPartyNotices
{
public:
    struct Entry
    {
        QString name;
        QString licence;
        QString url;
    };

    static QVector<Entry> entries();
    // One line per entry: the name, its licence and a link to its home page.
    static QString html();
};

} // namespace QMWidgets
