#pragma once

class ArtWriter;

// The pictures of the frame around a page: the menu bar's ground and its
// picture buttons, the icons of the application and shop menus, the
// product icons of the "More" menu, the application's logo and the maker's.
class FrameArt
{
public:
    static void generate(ArtWriter& writer);
};
