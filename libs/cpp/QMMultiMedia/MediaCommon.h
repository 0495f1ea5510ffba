#pragma once

#include <QString>

namespace QMMultiMedia {

// Tells what a media file is by the ending of its name; the contents play no part.
class MediaCommon
{
public:
    enum Type
    {
        Audio = 0,
        Video = 1,
        Image = 2,
        Other = 4
    };

    // The first list whose ending matches decides: video, then audio, then image.
    static int mediaType(const QString& fileName);
    static bool isAudio(const QString& fileName);
    static bool isVideo(const QString& fileName);
    static bool isImage(const QString& fileName);
};

} // namespace QMMultiMedia
