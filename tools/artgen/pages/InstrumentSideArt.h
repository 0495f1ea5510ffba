#pragma once

class ArtWriter;

// The pictures at the sides of the staff for the instruments beside the
// guitar: one half of the instrument's body on each side
// ("ukuleft.jpg", "ukuright.jpg", "violinleft.jpg", ...).
class InstrumentSideArt
{
public:
    static void generate(ArtWriter& writer);
};
