#include "ThirdPartyNotices.h"

namespace QMWidgets {

QVector<ThirdPartyNotices::Entry> ThirdPartyNotices::entries()
{
    return {
        { QStringLiteral("libmpg123 (mp3 decoding)"), QStringLiteral("GNU LGPL 2.1"),
            QStringLiteral("https://www.mpg123.de") },
        { QStringLiteral("libsndfile (wave and AIFF decoding)"), QStringLiteral("GNU LGPL 2.1 or later"),
            QStringLiteral("https://libsndfile.github.io/libsndfile/") },
        { QStringLiteral("PulseAudio client library (sound output)"), QStringLiteral("GNU LGPL 2.1 or later"),
            QStringLiteral("https://www.freedesktop.org/wiki/Software/PulseAudio/") },
        { QStringLiteral("Emmentaler music font of LilyPond (clefs, notes and signs in the pictures)"),
            QStringLiteral("SIL Open Font License 1.1"), QStringLiteral("https://lilypond.org") },
        { QStringLiteral("DejaVu fonts (texts in the pictures)"), QStringLiteral("Bitstream Vera Fonts licence"),
            QStringLiteral("https://dejavu-fonts.github.io") },
        { QStringLiteral("LAME (encoder of the samples)"), QStringLiteral("GNU LGPL 2 or later"),
            QStringLiteral("https://lame.sourceforge.io") },
    };
}

QString ThirdPartyNotices::html()
{
    QString text;
    for (const Entry& entry : entries()) {
        text += entry.name.toHtmlEscaped() + QStringLiteral(", ") + entry.licence.toHtmlEscaped()
            + QStringLiteral("<BR><a href=\"%1\">%1</a><BR>").arg(entry.url);
    }
    return text;
}

} // namespace QMWidgets
