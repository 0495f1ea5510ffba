#include "App.h"
#include "BalalaikaTonariumMainPage.h"
#include "BanjoTonariumMainPage.h"
#include "BassTonariumMainPage.h"
#include "BoardBase.h"
#include "DecoratedNotesWidget.h"
#include "FingerboardMap.h"
#include "InstrumentFinder.h"
#include "Label.h"
#include "MandolinTonariumMainPage.h"
#include "MusicShopBase.h"
#include "NoteSpelling.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"
#include "StaffGeometry.h"
#include "UkuleleTonariumMainPage.h"
#include "ViolinTonariumMainPage.h"

#include <QSignalSpy>
#include <QtTest>

#include <array>
#include <memory>

using namespace QMMusic;

namespace {

std::unique_ptr<InstrumentMainPage> makePage(const QString& key)
{
    if (key == QLatin1String("Ukulele"))
        return std::make_unique<UkuleleTonariumMainPage>();
    if (key == QLatin1String("Violin"))
        return std::make_unique<ViolinTonariumMainPage>();
    if (key == QLatin1String("Bass"))
        return std::make_unique<BassTonariumMainPage>();
    if (key == QLatin1String("Balalaika"))
        return std::make_unique<BalalaikaTonariumMainPage>();
    if (key == QLatin1String("Banjo"))
        return std::make_unique<BanjoTonariumMainPage>();
    return std::make_unique<MandolinTonariumMainPage>();
}

} // namespace

class tst_InstrumentTonarium : public QObject
{
    Q_OBJECT

private:
    static void instruments();

private slots:
    void pageIsTheInstruments_data() { instruments(); }
    void pageIsTheInstruments();
    void staffRowsSnapBackWithThePagesSettings_data() { instruments(); }
    void staffRowsSnapBackWithThePagesSettings();
    void boardPressReachesTheStaff_data() { instruments(); }
    void boardPressReachesTheStaff();
};

void tst_InstrumentTonarium::instruments()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("sidePicture");
    QTest::addColumn<QString>("shopClass");
    for (const auto& row : { std::array<const char*, 3> { "Ukulele", "uku", "QMMusic::UkuleleShop" },
             { "Violin", "violin", "QMMusic::ViolinShop" }, { "Bass", "bass", "QMMusic::BassShop" },
             { "Balalaika", "balalaika", "QMMusic::BalalaikaShop" }, { "Banjo", "banjo", "QMMusic::BanjoShop" },
             { "Mandolin", "mandolin", "QMMusic::MandolinShop" } })
        QTest::newRow(row[0]) << row[0] << row[1] << row[2];
}

// The window is the instrument's: its object names, its side pictures, its
// board and its shop.
void tst_InstrumentTonarium::pageIsTheInstruments()
{
    QFETCH(QString, key);
    QFETCH(QString, sidePicture);
    QFETCH(QString, shopClass);

    std::unique_ptr<InstrumentMainPage> page = makePage(key);
    QCOMPARE(page->objectName(), key + QStringLiteral("TonariumMainPage"));
    auto* finder = page->findChild<InstrumentFinder*>();
    QVERIFY(finder);
    QCOMPARE(finder->board()->instrumentKey(), key);
    QCOMPARE(finder->decoratedNotesWidget()->objectName(), QStringLiteral("DecoratedNotesWidget") + key);
    for (const QString& side : { QStringLiteral("Left"), QStringLiteral("Right") }) {
        auto* label = finder->findChild<QMWidgets::Label*>(key + side + QStringLiteral("Label"));
        QVERIFY2(label, qPrintable(side));
    }
    QVERIFY(!QPixmap(QStringLiteral(":/%1left.jpg").arg(sidePicture)).isNull());
    QVERIFY(!QPixmap(QStringLiteral(":/%1right.jpg").arg(sidePicture)).isNull());
    QVERIFY(!QPixmap(QStringLiteral(":/%1_0@2x.jpg").arg(key)).isNull());
    page->addShopMenu();
    QCOMPARE(QString::fromLatin1(page->shop()->metaObject()->className()), shopClass);
}

// Every row of the instrument's table of note heights, shown on the page's
// staff, paints as that very note at several window sizes: the staff's
// settings of the page and the table go together.
void tst_InstrumentTonarium::staffRowsSnapBackWithThePagesSettings()
{
    QFETCH(QString, key);

    std::unique_ptr<InstrumentMainPage> page = makePage(key);
    page->setAttribute(Qt::WA_DontShowOnScreen);
    page->show();
    NotesWidget* staff = page->findChild<InstrumentFinder*>()->decoratedNotesWidget()->notesWidget();
    QSignalSpy spy(staff, &NotesWidget::noteChanged);
    const auto rows = StaffGeometry::referenceRows(key.toLower());
    QVERIFY(!rows.isEmpty());
    static QImage target(1, 1, QImage::Format_ARGB32_Premultiplied);
    for (const QSize& size : { QSize(800, 600), QSize(1000, 700), QSize(1280, 800) }) {
        page->resize(size);
        QCoreApplication::processEvents();
        for (const auto& row : rows) {
            spy.clear();
            staff->slotShowNote(row.first, 0);
            staff->render(&target, QPoint(), QRegion(0, 0, 1, 1), QWidget::RenderFlags());
            const QString named = spy.isEmpty() ? QString() : spy.last().at(0).toString();
            QVERIFY2(named == row.first,
                qPrintable(QStringLiteral("%1 in a %2 by %3 window painted as \"%4\"")
                               .arg(row.first)
                               .arg(size.width())
                               .arg(size.height())
                               .arg(named)));
        }
    }
}

// A press on the board reaches the staff and, through it, the trainer.
void tst_InstrumentTonarium::boardPressReachesTheStaff()
{
    QFETCH(QString, key);

    std::unique_ptr<InstrumentMainPage> page = makePage(key);
    page->resize(1000, 700);
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    auto* finder = page->findChild<InstrumentFinder*>();
    BoardBase* board = finder->board();
    const FingerboardMap::Box box = FingerboardMap::forKey(key).boxes().value(5);
    const QPoint point(
        int((box.centre.x() + 0.5) * board->width() / 800.0), int((box.centre.y() + 0.5) * board->height() / 194.0));
    QTest::mouseClick(board, Qt::LeftButton, Qt::NoModifier, point);
    QCOMPARE(board->currentNote(), NoteSpelling::positionStem(box.name));
    const NotesTrainerWidget* trainer = finder->decoratedNotesWidget()->trainerWidget();
    QCOMPARE(trainer->currentNote(), NoteSpelling::positionNoteName(box.name));
    QCOMPARE(trainer->currentAccidental(), NoteSpelling::positionAccidental(box.name));
}

int main(int argc, char* argv[])
{
    // The pages' menu bar asks the application object; a scratch home keeps
    // the tester's own settings untouched.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("UkuleleTonarium"));
    tst_InstrumentTonarium test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_InstrumentTonarium.moc"
