#pragma once

class ArtWriter;

// The pictures of the share and join panels, a wide button per channel with
// a drawn emblem of our own (speech bubble, bird, "VK" monogram, envelope)
// and the channel's name, and the update check's two pictures.
class CommunityArt
{
public:
    static void generate(ArtWriter& writer);
};
