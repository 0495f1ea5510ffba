#pragma once

class ArtWriter;

// The cover shown for a sound file that has no picture beside it: a record
// in its sleeve, in the program's copper.
class CoverArt
{
public:
    static void generate(ArtWriter& writer);
};
