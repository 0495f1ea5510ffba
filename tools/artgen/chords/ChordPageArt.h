#pragma once

class ArtWriter;

// The pictures around the chord pictures: the dark ground of the picker,
// the song strip and the view options, and the favourites menu's icons.
class ChordPageArt
{
public:
    static void generate(ArtWriter& writer);
};
