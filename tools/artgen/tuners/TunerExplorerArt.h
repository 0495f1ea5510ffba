#pragma once

#include <QImage>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>

class ArtWriter;

// The Tuners explorer's pictures: a rounded tile per instrument with a
// small drawing of it, in the four looks that the style sheet gives a
// button (plain, hover, pressed or checked, both), the tile of the other
// programs, and the dark, warm ground behind the column.
class TunerExplorerArt
{
public:
    enum class Look
    {
        Plain,
        Hover,
        Pressed, // pressed or checked: a warm yellow rim glows
        PressedHover,
    };

    // A button's size on the screen; the @2x pictures are twice it.
    static constexpr QSize ButtonSize = QSize(92, 92);
    // The size on the screen of one tile of the explorer's ground.
    static constexpr QSize BackgroundSize = QSize(256, 256);
    // The button of the programs beside the tuners, a grid of tiles.
    static QString otherAppsButton() { return QStringLiteral("OtherAppsButton"); }

    // The picture's name of a button in a look: "<button>", "<button>_hvr",
    // "<button>_pressed", "<button>_pressed_hvr".
    static QString pictureName(const QString& button, Look look);
    // The tile with an instrument (transparent, any size) laid across it
    // corner to corner; a null instrument gives the grid of programs.
    static QImage tile(const QImage& instrument, Look look, int scale);
    // The ground, seamless when repeated.
    static QImage background(int scale);
    // Saves every button in its four looks at 1x and 2x, the cello's plain
    // tile also as "_resources/imgs/CelloButton.png", and the ground, all
    // in the "Tuners" group. `instruments` are TunerInstrumentArt's by key.
    static void generate(ArtWriter& writer, const QMap<QString, QImage>& instruments);
};
