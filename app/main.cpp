#include "App.h"
#include "AppStyleSheet.h"
#include "App_mac.h"
#include "BaseMainPage.h"
#include "ChordPictures.h"
#include "CommandLine.h"
#include "CorvaneProducts.h"
#include "CorvaneSite.h"
#include QM_PAGE_HEADER
#include "WindowGeometry.h"

#include <QFile>
#include <QScreen>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

// Pages with a menu bar list the maker's products in it; the tuners carry
// their menus in their own bars.
template <typename Page, typename = void> struct HasMenuBar : std::false_type
{
};
template <typename Page>
struct HasMenuBar<Page, std::void_t<decltype(std::declval<Page&>().promoMenuBar())>> : std::true_type
{
};

template <typename Page> void addProducts(Page& page)
{
    if constexpr (HasMenuBar<Page>::value)
        QMWidgets::CorvaneProducts::addTo(page.promoMenuBar());
}

// A note finder has a shop and a minimum size, and opens at that size; the
// other pages keep their own minimum and open at the size they ask for.
template <typename Page> QSize addShopAndMinimumSize(Page& page)
{
    if constexpr (std::is_base_of_v<QMMusic::BaseMainPage, Page>) {
        page.addShopMenu();
        page.setMinimumHeight(600);
        page.setMinimumWidth(800);
        return page.minimumSize();
    } else {
        return page.sizeHint().expandedTo(page.minimumSize());
    }
}

} // namespace

// One program of the family: the build compiles this file once per page,
// naming the program, its page class and header, its description for the
// command line, its store id and the folder of
// its introduction slides below the Resources folder.
int main(int argc, char* argv[])
{
    // Scale with the screen and take the sharp pixmaps on high-density displays,
    // as the pictures and the style's icons come at twice the size.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral(QM_PROGRAM));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    // The name of the menu entry: the desktop matches windows, badge and
    // log-on entry to the program by it.
    QGuiApplication::setDesktopFileName(QStringLiteral(QM_DESKTOP_ID));
    const int exitCode = QMWidgets::CommandLine::handle(QStringLiteral(QM_DESCRIPTION));
    if (exitCode >= 0)
        return exitCode;
    // A second launch only brings the running window forward.
    if (Platform::App_mac::instance()->isRunningElsewhere())
        return 0;

    app.setAppId(QStringLiteral(QM_STORE_ID));
    app.setPromotedLink(QLatin1String(QMWidgets::CorvaneSite::webHost) + QStringLiteral("/apps/")
        + QStringLiteral(QM_PROGRAM).toLower() + QLatin1Char('/'));
    QCoreApplication::setOrganizationDomain(QLatin1String(QMWidgets::CorvaneSite::domain));
    app.setResourceOffset(QMMusic::ChordPictures::libraryOffset());
    app.setStyleSheet(QMWidgets::AppStyleSheet::text());
    app.setCorvaneLinks();

    QM_PAGE_CLASS page;

    addProducts(page);
    const QSize opening = addShopAndMinimumSize(page);
    // Only the tuner pages store these; this window opens at the size above.
    // A hand-edited size is kept within the screen.
    const QSize stored(app.settingsValue(QStringLiteral("Width"), opening.width()).toInt(),
        app.settingsValue(QStringLiteral("Height"), opening.height()).toInt());
    const QScreen* screen = QGuiApplication::primaryScreen();
    page.resize(QMWidgets::WindowGeometry::fittedSize(
        stored, page.minimumSize(), screen ? screen->availableGeometry().size() : page.minimumSize()));

    QObject::connect(&app, &QMWidgets::App::dockClicked, &page, &QWidget::showNormal);
    QObject::connect(&app, &QMWidgets::App::dockClicked, &page, [&page]() {
        page.raise();
        page.activateWindow();
    });

    // The translations manager comes into being here, after the page.
    // A program shows the slides it has: the piano's leave out training.
    QStringList slides = QMWidgets::App::introductionSlidesFor(
        app.bundleResourcePath() + QStringLiteral(QM_SLIDE_FOLDER), app.currentLanguage());
    slides.erase(std::remove_if(slides.begin(), slides.end(), [](const QString& path) { return !QFile::exists(path); }),
        slides.end());
    app.setIntroductionSlides(slides);

    page.setWindowTitle(QCoreApplication::applicationName());
    app.setMainWidget(&page);
    page.show();
    app.showHelpOnStart();
    // Now and then a start asks to share the program or to join the maker.
    app.callReminder(5, 6);

    return app.exec();
}
