#pragma once

class ArtWriter;

// The small pictures of the style sheet that belong to no single widget
// family: share and join channels, instrument labels, tab arrows, the menu
// indicator and the play button's four states.
class LookArt
{
public:
    static void generate(ArtWriter& writer);
};
