#pragma once

#include <QString>

namespace QMMusic {

// The samples of the running program's notes: where they lie and playing them.
class NoteSamples
{
public:
    // The Resources folder beside the program + the sample's file name.
    static QString path(const QString& instrumentKey, const QString& stem);
    // Plays the note's sample through a new player of the shared pool.
    static void play(const QString& instrumentKey, const QString& stem);
};

} // namespace QMMusic
