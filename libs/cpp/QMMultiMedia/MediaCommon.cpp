#include "MediaCommon.h"

#include <QStringList>

namespace QMMultiMedia {

namespace {

bool endsWithAny(const QString& name, const QStringList& endings)
{
    for (const QString& ending : endings) {
        if (name.endsWith(ending))
            return true;
    }
    return false;
}

} // namespace

int MediaCommon::mediaType(const QString& fileName)
{
    static const QStringList video { ".avi", ".mp4", ".mov", ".wmv", ".3gp", ".3g2", ".m4v", ".mpg", ".flv", ".swf",
        ".mkv", ".asf", ".vob" };
    static const QStringList audio { ".wav", ".mp3", ".m4a", ".wma", ".ac3", ".aac", ".ogg", ".3ga", ".aiff" };
    static const QStringList image { ".jpg", ".png", ".bmp", ".tif", ".tiff", ".jpeg", ".gif" };

    const QString name = fileName.toLower();
    if (endsWithAny(name, video))
        return Video;
    if (endsWithAny(name, audio))
        return Audio;
    if (endsWithAny(name, image))
        return Image;
    return Other;
}

bool MediaCommon::isAudio(const QString& fileName)
{
    return mediaType(fileName) == Audio;
}

bool MediaCommon::isVideo(const QString& fileName)
{
    return mediaType(fileName) == Video;
}

bool MediaCommon::isImage(const QString& fileName)
{
    return mediaType(fileName) == Image;
}

} // namespace QMMultiMedia
