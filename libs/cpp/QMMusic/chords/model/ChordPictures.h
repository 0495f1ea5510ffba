#pragma once

#include <QString>
#include <QVector>

namespace QMMusic {

// The names of the chord pictures in the resources. A picture is named by
// what it shows, so two chords with the same row share one.
class ChordPictures
{
public:
    // The resource offset that the programs set (App::setResourceOffset):
    // the chord pictures lie in the resources below it.
    static QString libraryOffset();
    // The folder of the pictures, after ":/" and the resource offset.
    static QString folder();
    // The piano's 24 keys folded onto the 12 pitch classes C to B: "0" where
    // a key of that class is down in either octave, "X" where none is.
    static QString pianoCode(const QVector<int>& tab);
    // The photo's code: the piano's code, or for strings "X" for a muted one
    // and the number for any other, with no separator ("X02220").
    static QString photoCode(const QString& key, const QVector<int>& tab);
    // folder() + key + "_" + code + ".jpg".
    static QString photoName(const QString& key, const QVector<int>& tab);
    // folder() + "a_" (neck view) or "b_" (tablature) + piano code + ".png".
    static QString keysName(const QVector<int>& tab, bool tablature);
};

} // namespace QMMusic
