#include "FamilyPrograms.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QProcess>

namespace QMWidgets {

namespace {

// Titles are names of products and stay untranslated.
const FamilyPrograms::Program kPrograms[] = {
    { "GuitarTonarium", "Guitar Tonarium", true },
    { "BassTonarium", "Bass Tonarium", true },
    { "UkuleleTonarium", "Ukulele Tonarium", true },
    { "BanjoTonarium", "Banjo Tonarium", true },
    { "MandolinTonarium", "Mandolin Tonarium", true },
    { "BalalaikaTonarium", "Balalaika Tonarium", true },
    { "ViolinTonarium", "Violin Tonarium", true },
    { "PianoTonarium", "Piano Tonarium", true },
    { "Chords", "Chords", false },
    { "Tuners", "Tuners", false },
    { "Metronome", "Metronome", false },
};

// The desktop id prefix that names the installed icons.
constexpr char kIconPrefix[] = "com.corvane.";

} // namespace

QVector<FamilyPrograms::Program> FamilyPrograms::available(const QString& directory)
{
    const QString running = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const QDir dir(directory);
    QVector<Program> found;
    for (const Program& program : kPrograms) {
        const QString executable = QLatin1String(program.executable);
        const QFileInfo file(dir.filePath(executable));
        if (executable != running && file.isFile() && file.isExecutable())
            found.append(program);
    }
    return found;
}

bool FamilyPrograms::start(const char* executable, const QString& directory)
{
    const QString path = QDir(directory).filePath(QLatin1String(executable));
    return QFileInfo(path).isExecutable() && QProcess::startDetached(path, {}, directory);
}

QAction* FamilyPrograms::makeAction(const Program& program, QObject* parent)
{
    auto* action = new QAction(QIcon::fromTheme(QLatin1String(kIconPrefix) + QLatin1String(program.executable)),
        QLatin1String(program.title), parent);
    const char* executable = program.executable;
    QObject::connect(action, &QAction::triggered, action, [executable]() { start(executable); });
    return action;
}

} // namespace QMWidgets
