// slidegen: renders the introduction slides from a program's own widgets,
// with captions in each slide language, into a folder; given a second
// folder, also the screenshots of the program's store listing. A third
// argument names the instrument ("Ukulele"), "Metronome", "Tuners" or "Chords"; the guitar by
// default.
#include "App.h"
#include "AppStyleSheet.h"
#include "ChordPictures.h"
#include "SlideCaptions.h"
#include "SlideComposer.h"
#include "SlideScenes.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char* argv[])
{
    if (argc < 2)
        return 1;
    const QString outputDir = QString::fromLocal8Bit(argv[1]);
    const QString instrument = argc > 3 ? QString::fromLocal8Bit(argv[3]) : QStringLiteral("Guitar");
    const bool wholeProgram = instrument == QLatin1String("Metronome") || instrument == QLatin1String("Tuners")
        || instrument == QLatin1String("Chords");
    const QString program = wholeProgram ? instrument : instrument + QStringLiteral("Tonarium");

    // The application object makes the per-user folders; a throw-away home
    // keeps the builder's own untouched, and no update check may start.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QSettings seed(home.path() + QStringLiteral("/Library/Application Support/%1/settings.plist").arg(program),
        QSettings::IniFormat);
    seed.setValue(program + QStringLiteral("/checkupdates"), false);
    seed.sync();

    // The offscreen screen is 800 by 600: the page fills it, and the menus
    // open at full length as they do on a desktop.
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), program);
    app.setStyleSheet(QMWidgets::AppStyleSheet::text());
    // As in the programs: the chord pictures lie below the library's offset.
    app.setResourceOffset(QMMusic::ChordPictures::libraryOffset());

    const QVector<SlideScenes::Scene> scenes = SlideScenes::render(instrument);
    QDir().mkpath(outputDir);
    bool ok = true;
    for (const QString& language : SlideCaptions::languages()) {
        for (int n = 0; n < scenes.size(); ++n) {
            if (scenes.at(n).content.isNull())
                continue;
            const QImage slide = SlideComposer::compose(scenes.at(n).content, scenes.at(n).rings,
                SlideCaptions::title(n, language, instrument), SlideCaptions::text(n, language, instrument));
            ok = slide.save(outputDir + QStringLiteral("/TRXSlide%1_%2.jpg").arg(n).arg(language), "JPG", 88) && ok;
        }
    }
    // The page with a note found on the neck, and in training.
    if (argc > 2) {
        const QString screenshotDir = QString::fromLocal8Bit(argv[2]);
        QDir().mkpath(screenshotDir);
        ok = scenes.at(1).content.save(screenshotDir + QStringLiteral("/finder.png")) && ok;
        if (scenes.size() > 4 && !scenes.at(4).content.isNull())
            ok = scenes.at(4).content.save(screenshotDir + QStringLiteral("/training.png")) && ok;
    }
    return ok ? 0 : 1;
}
