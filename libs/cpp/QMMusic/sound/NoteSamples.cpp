#include "NoteSamples.h"

#include "App.h"
#include "AudioPoolPlayer.h"
#include "NoteSpelling.h"

namespace QMMusic {

QString NoteSamples::path(const QString& instrumentKey, const QString& stem)
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    const QString resources = app ? app->bundleResourcePath() : QString();
    return resources + NoteSpelling::sampleFileName(instrumentKey, stem);
}

void NoteSamples::play(const QString& instrumentKey, const QString& stem)
{
    QMMultiMedia::AudioPoolPlayer::instance()->play(path(instrumentKey, stem));
}

} // namespace QMMusic
