#pragma once

class ArtWriter;

// The engraved pictures of the grand staff: both clefs and the note head,
// cut from the music font so that they sit on the staff's lines, and the
// three accidental buttons in their plain and selected (framed) states.
class StaffArt
{
public:
    static void generate(ArtWriter& writer);
};
