#pragma once

#include <QImage>

class ArtWriter;

// Draws the 88-key keyboard ("Piano_0") to the intervals of its hit test,
// so that every key's face lies exactly where a press answers it, and one
// overlay per key that lights that key's own shape ("Piano_<n>", keys 1 to
// 88), at 2048 px wide; the background has a single-size copy too.
class PianoArt
{
public:
    static void generate(ArtWriter& writer);

    static QImage drawKeyboard();
    // Transparent picture with the key of this number lit.
    static QImage drawOverlay(int key);
};
