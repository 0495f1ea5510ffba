#pragma once

class ArtWriter;

// The pictures of the training panel and the mode switch: the round
// Start/Stop button, the ivory and ebony answer keys, and the two halves of
// the Find Note / Training switch, each in its states and at two scales.
class TrainerArt
{
public:
    static void generate(ArtWriter& writer);
};
