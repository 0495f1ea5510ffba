// artgen: draws the program's pictures and synthesises its samples.
#include "ArtWriter.h"
#include "ChordArt.h"
#include "ChordPageArt.h"
#include "CommunityArt.h"
#include "CoverArt.h"
#include "DesktopIconArt.h"
#include "FingerboardArt.h"
#include "FingerboardDesign.h"
#include "FrameArt.h"
#include "GuitarSampleSynth.h"
#include "InstrumentSampleSynth.h"
#include "InstrumentSideArt.h"
#include "LookArt.h"
#include "MetronomeArt.h"
#include "MetronomeSoundSynth.h"
#include "NeckArt.h"
#include "PageArt.h"
#include "PianoArt.h"
#include "StaffArt.h"
#include "TrainerArt.h"
#include "TunerExplorerArt.h"
#include "TunerInstrumentArt.h"
#include "TunerSampleSynth.h"

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
    const QCommandLineOption iconPrefixOption(
        "icon-prefix", "Start of the desktop icons' names, before the program's name.", "prefix");
    parser.addOptions({ picturesOption, bundleOption, fontOption, iconsOption, iconPrefixOption });
    parser.process(app);

    if (parser.isSet(fontOption))
        QFontDatabase::addApplicationFont(parser.value(fontOption));

    ArtWriter writer(parser.value(picturesOption), parser.value(bundleOption));
    LookArt::generate(writer);
    StaffArt::generate(writer);
    NeckArt::generate(writer);
    FingerboardArt::generate(writer);
    PianoArt::generate(writer);
    PageArt::generate(writer);
    InstrumentSideArt::generate(writer);
    TrainerArt::generate(writer);
    CoverArt::generate(writer);
    MetronomeArt::generate(writer);
    TunerExplorerArt::generate(writer, TunerInstrumentArt::generate(writer));
    ChordArt::generate(writer);
    ChordPageArt::generate(writer);
    FrameArt::generate(writer);
    CommunityArt::generate(writer);
    GuitarSampleSynth::generate(writer);
    InstrumentSampleSynth::generate(writer);
    MetronomeSoundSynth::generate(writer);
    TunerSampleSynth::generate(writer);
    if (parser.isSet(iconsOption)) {
        const QString prefix = parser.value(iconPrefixOption);
        bool iconsWritten
            = DesktopIconArt::generate(parser.value(iconsOption), prefix + QStringLiteral("GuitarTonarium"));
        for (const QString& key : QMMusic::FingerboardDesign::keys()) {
            const QMMusic::FingerboardDesign& design = QMMusic::FingerboardDesign::forKey(key);
            iconsWritten = DesktopIconArt::generate(parser.value(iconsOption),
                               prefix + key + QStringLiteral("Tonarium"), { design.stringCount(), design.fretted })
                && iconsWritten;
        }
        iconsWritten = DesktopIconArt::generate(
                           parser.value(iconsOption), prefix + QStringLiteral("PianoTonarium"), { 0, false })
            && iconsWritten;
        iconsWritten = DesktopIconArt::generate(
                           parser.value(iconsOption), prefix + QStringLiteral("Metronome"), DesktopIconArt::metronome())
            && iconsWritten;
        iconsWritten = DesktopIconArt::generate(
                           parser.value(iconsOption), prefix + QStringLiteral("Tuners"), DesktopIconArt::tuningFork())
            && iconsWritten;
        iconsWritten = DesktopIconArt::generate(
                           parser.value(iconsOption), prefix + QStringLiteral("Chords"), DesktopIconArt::chordDiagram())
            && iconsWritten;
        if (!iconsWritten)
            return 1;
    }

    return writer.writeQrcFiles(parser.value(picturesOption)) ? 0 : 1;
}
