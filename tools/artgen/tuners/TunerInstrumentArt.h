#pragma once

#include <QImage>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>

class ArtWriter;

// The Tuners program's pictures of whole instruments: front view, upright,
// drawn to each instrument's real proportions in the warm light of the
// finders' necks (grained wood, varnish, metal strings). The instrument
// fills the upper part of a portrait picture and leaves the lower part
// free, where the page lays its row of string buttons.
class TunerInstrumentArt
{
public:
    // The @2x size of every picture.
    static constexpr QSize PictureSize = QSize(1000, 1400);
    // The rows of the picture the instrument may reach: above the buttons.
    static constexpr int InstrumentTop = 40;
    static constexpr int InstrumentBottom = 1150;

    // The instruments' names, as their pictures are called ("Violin" ...).
    static QStringList keys();
    // The instrument on a transparent ground; an unknown key gives an
    // empty picture.
    static QImage drawInstrument(const QString& key);
    // Saves "<key>.jpg" on black for every instrument into the "Tuners"
    // group and returns the transparent drawings by key, for the explorer.
    static QMap<QString, QImage> generate(ArtWriter& writer);
};
