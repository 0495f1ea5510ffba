#include "CorvaneProducts.h"

#include "CorvaneSite.h"
#include "PromoMenuBar.h"

#include <QPixmap>

namespace QMWidgets {

namespace {

struct Product
{
    const char* icon;
    const char* name;
    // The page below "/apps/" on the maker's site, or the store name.
    const char* target;
    // Empty for a web page.
    const char* storeId;
};

// A null icon separates two groups.
const Product kProducts[] = {
    { "chordtonarium", "Chord Tonarium", "chordtonarium", "" },
    { "basstonarium", "Bass Tonarium", "basstonarium", "" },
    { "ukuleletonarium", "Ukulele Tonarium", "ukuleletonarium", "" },
    { "pianotonarium", "Piano Tonarium", "pianotonarium", "" },
    { nullptr, nullptr, nullptr, nullptr },
    { "tunertonarium", "Tuner Tonarium", "tunertonarium", "" },
    { "metronometonarium", "Metronome Tonarium", "metronometonarium", "" },
    { "chordtransposer", "Chord Transposer", "chordtransposer", "" },
    { nullptr, nullptr, nullptr, nullptr },
    { "soundrecorder", "Sound Recorder", "SoundRecorder", "id918273650" },
    { "timecodereader", "Timecode Reader", "TimecodeReader", "id918273655" },
};

} // namespace

void CorvaneProducts::addTo(PromoMenuBar* bar)
{
    for (const Product& product : kProducts) {
        if (!product.icon) {
            bar->addMenuSeparator();
            continue;
        }
        const QPixmap icon(QStringLiteral(":/promo/%1.png").arg(QLatin1String(product.icon)));
        const QString name = QLatin1String(product.name);
        if (*product.storeId) {
            bar->addMenuAppLink(icon, name, QLatin1String(product.target), QLatin1String(product.storeId));
        } else {
            bar->addMenuLink(icon, name,
                QLatin1String(CorvaneSite::webHost) + QStringLiteral("/apps/") + QLatin1String(product.target)
                    + QLatin1Char('/'));
        }
    }
}

} // namespace QMWidgets
