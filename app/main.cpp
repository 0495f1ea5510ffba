#include "App.h"
#include "App_mac.h"
#include "AppStyleSheet.h"
#include "CorvaneSite.h"
#include "GuitarTonariumMainPage.h"
#include "PromoMenuBar.h"

#include <QWidget>

int main(int argc, char* argv[])
{
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    // A second launch only brings the running window forward.
    if (App_mac::instance()->isRunningElsewhere())
        return 0;

    app.setAppId(QLatin1String(QMWidgets::CorvaneSite::guitarTonariumStoreId));
    app.setPromotedLink(QLatin1String(QMWidgets::CorvaneSite::webHost) + QStringLiteral("/apps/guitartonarium/"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    QCoreApplication::setOrganizationDomain(QLatin1String(QMWidgets::CorvaneSite::domain));
    app.setResourceOffset(QStringLiteral("libs/cpp/QMMusic/"));
    app.setStyleSheet(QMWidgets::AppStyleSheet::text());
    app.setCorvaneLinks();

    QMMusic::GuitarTonariumMainPage page;

    // The maker's other products in the "More" menu: four pages, three
    // pages, two store entries.
    struct Product
    {
        const char* icon;
        const char* name;
        const char* target;
        const char* storeId;
    };
    const Product products[] = {
        { "chordtonarium", "Chord Tonarium", "chordtonarium", nullptr },
        { "basstonarium", "Bass Tonarium", "basstonarium", nullptr },
        { "ukuleletonarium", "Ukulele Tonarium", "ukuleletonarium", nullptr },
        { "pianotonarium", "Piano Tonarium", "pianotonarium", nullptr },
        { nullptr, nullptr, nullptr, nullptr },
        { "tunertonarium", "Tuner Tonarium", "tunertonarium", nullptr },
        { "metronometonarium", "Metronome Tonarium", "metronometonarium", nullptr },
        { "chordtransposer", "Chord Transposer", "chordtransposer", nullptr },
        { nullptr, nullptr, nullptr, nullptr },
        { "soundrecorder", "Sound Recorder", "SoundRecorder", "id918273650" },
        { "timecodereader", "Timecode Reader", "TimecodeReader", "id918273655" },
    };
    QMWidgets::PromoMenuBar* bar = page.promoMenuBar();
    for (const Product& product : products) {
        if (!product.icon) {
            bar->addMenuSeparator();
            continue;
        }
        const QPixmap icon(QStringLiteral(":/promo/%1.png").arg(QLatin1String(product.icon)));
        if (product.storeId) {
            bar->addMenuAppLink(icon, QLatin1String(product.name), QLatin1String(product.target),
                                QLatin1String(product.storeId));
        } else {
            bar->addMenuLink(icon, QLatin1String(product.name),
                             QLatin1String(QMWidgets::CorvaneSite::webHost) + QStringLiteral("/apps/")
                                 + QLatin1String(product.target) + QLatin1Char('/'));
        }
    }
    page.addShopMenu();

    page.setMinimumHeight(600);
    page.setMinimumWidth(800);
    // Only the tuner pages store these; this window opens at its minimum.
    page.resize(app.settingsValue(QStringLiteral("Width"), page.minimumSize().width()).toInt(),
                app.settingsValue(QStringLiteral("Height"), page.minimumSize().height()).toInt());

    QObject::connect(&app, &QMWidgets::App::dockClicked, &page, &QWidget::showNormal);
    QObject::connect(&app, &QMWidgets::App::dockClicked, &page, [&page]() {
        page.raise();
        page.activateWindow();
    });

    // The translations manager comes into being here, after the page.
    app.setIntroductionSlides(
        QMWidgets::App::introductionSlidesFor(app.bundleResourcePath(), app.currentLanguage()));

    page.setWindowTitle(QCoreApplication::applicationName());
    app.setMainWidget(&page);
    page.show();
    app.showHelpOnStart();

    return app.exec();
}
