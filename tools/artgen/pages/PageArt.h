#pragma once

class ArtWriter;

// The pictures of the guitar page around the staff: the two side pictures,
// each the edge of a guitar's top in spruce beside the dark ground of the
// neck, and the paper behind the staff.
class PageArt
{
public:
    static void generate(ArtWriter& writer);
};
