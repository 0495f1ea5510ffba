// artgen: draws the program's pictures and synthesises its samples.
#include "ArtWriter.h"
#include "DesktopIconArt.h"
#include "FingerboardArt.h"
#include "FrameArt.h"
#include "GuitarSampleSynth.h"
#include "InstrumentSampleSynth.h"
#include "InstrumentSideArt.h"
#include "LookArt.h"
#include "MetronomeSoundSynth.h"
#include "NeckArt.h"
#include "PageArt.h"
#include "StaffArt.h"
#include "TrainerArt.h"

#include <QCommandLineParser>
#include <QFontDatabase>
#include <QGuiApplication>

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);

    QCommandLineParser parser;
    const QCommandLineOption picturesOption("pictures", "Folder of the compiled-in pictures.", "dir");
    const QCommandLineOption bundleOption("bundle", "Resources folder beside the program.", "dir");
    const QCommandLineOption fontOption("music-font", "Engraving font (Emmentaler).", "file");
    const QCommandLineOption iconsOption("icons", "Folder of the desktop icons (hicolor theme).", "dir");
    const QCommandLineOption iconNameOption("icon-name", "File name of the desktop icons.", "name");
    parser.addOptions({ picturesOption, bundleOption, fontOption, iconsOption, iconNameOption });
    parser.process(app);

    if (parser.isSet(fontOption))
        QFontDatabase::addApplicationFont(parser.value(fontOption));

    ArtWriter writer(parser.value(picturesOption), parser.value(bundleOption));
    LookArt::generate(writer);
    StaffArt::generate(writer);
    NeckArt::generate(writer);
    FingerboardArt::generate(writer);
    PageArt::generate(writer);
    InstrumentSideArt::generate(writer);
    TrainerArt::generate(writer);
    FrameArt::generate(writer);
    GuitarSampleSynth::generate(writer);
    InstrumentSampleSynth::generate(writer);
    MetronomeSoundSynth::generate(writer);
    if (parser.isSet(iconsOption) && !DesktopIconArt::generate(parser.value(iconsOption), parser.value(iconNameOption)))
        return 1;

    return writer.writeQrc(parser.value(picturesOption) + QStringLiteral("/art.qrc")) ? 0 : 1;
}
