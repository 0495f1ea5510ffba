#pragma once

#include <QImage>

class ArtWriter;

// The metronome's character, a little wooden metronome with a face, in each
// of its states: the base picture with the eyes to the left and, drawn over
// it, the eyes to the right, the beat face, the muted faces and the closed
// eyes; and the icons of its buttons.
class MetronomeArt
{
public:
    enum class Eyes
    {
        Left,
        Right,
        Beat, // the first beat of a bar: eyes squeezed happily shut, singing
        Closed, // the visible tick switched off
    };

    static void generate(ArtWriter& writer);

    // The character on a transparent ground; muted, its mouth is zipped.
    static QImage face(Eyes eyes, bool muted);
    // The base picture: the stage, and the character with its eyes left.
    static QImage base();
};
