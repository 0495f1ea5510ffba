#include "SlideScenes.h"

#include "AppButton.h"
#include "BalalaikaTonarium.h"
#include "BalalaikaTonariumMainPage.h"
#include "BanjoTonarium.h"
#include "BanjoTonariumMainPage.h"
#include "BassTonarium.h"
#include "BassTonariumMainPage.h"
#include "BoardBase.h"
#include "ChordView.h"
#include "ChordsButtonsPanel.h"
#include "ChordsMainPage.h"
#include "ChordsWindow.h"
#include "CorvaneProducts.h"
#include "DecoratedNotesWidget.h"
#include "FingerboardDesign.h"
#include "GuitarBoard.h"
#include "GuitarTonarium.h"
#include "GuitarTonariumMainPage.h"
#include "MandolinTonarium.h"
#include "MandolinTonariumMainPage.h"
#include "Metronome.h"
#include "MetronomeControls.h"
#include "MetronomeMainPage.h"
#include "NotesLernReportDialog.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"
#include "PianoBoard.h"
#include "PianoTonarium.h"
#include "PianoTonariumMainPage.h"
#include "PromoMenuBar.h"
#include "Transposer.h"
#include "TuneButton.h"
#include "TunerBasePage.h"
#include "TunersCommonPanel.h"
#include "TunersExplorer.h"
#include "TunersMainPage.h"
#include "UkuleleTonarium.h"
#include "UkuleleTonariumMainPage.h"
#include "ViolinTonarium.h"
#include "ViolinTonariumMainPage.h"
#include <QTreeWidget>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QtMath>

#include <memory>

using QMMusic::BaseMainPage;
using QMMusic::GuitarTonariumMainPage;

namespace {

const QSize kPageSize(800, 600);

void settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

// A page of one instrument and the parts of it that the scenes touch,
// whatever the class of its board.
struct Page
{
    std::unique_ptr<BaseMainPage> window;
    QMMusic::DecoratedNotesWidget* notes = nullptr;
    QFrame* board = nullptr;
    std::function<QString(int, int)> positionToNote;
    std::function<void(const QString&, int)> setNote;
    std::function<QString()> currentNote;

    BaseMainPage* get() const { return window.get(); }
    BaseMainPage* operator->() const { return window.get(); }
};

// The parts of a page whose board is of type Board.
template <typename Board>
Page pageWith(std::unique_ptr<BaseMainPage> window, QMMusic::DecoratedNotesWidget* notes, Board* board)
{
    Page page;
    page.notes = notes;
    page.board = board;
    page.positionToNote = [board](int x, int y) { return board->positionToNote(x, y); };
    page.setNote = [board](const QString& name, int accidental) { board->slotSetNote(name, accidental); };
    page.currentNote = [board]() { return board->currentNote(); };
    page.window = std::move(window);
    return page;
}

template <typename MainPage, typename Tonarium> Page pageOf(Tonarium* (MainPage::*tonarium)() const)
{
    auto window = std::make_unique<MainPage>();
    Tonarium* finder = (window.get()->*tonarium)();
    return pageWith(std::move(window), finder->decoratedNotesWidget(), finder->board());
}

Page guitarPage()
{
    auto window = std::make_unique<GuitarTonariumMainPage>();
    QMMusic::GuitarTonarium* finder = window->guitarTonarium();
    return pageWith(std::move(window), finder->decoratedNotesWidget(), finder->guitarBoard());
}

Page newPage(const QString& key)
{
    if (key == QLatin1String("Ukulele"))
        return pageOf(&QMMusic::UkuleleTonariumMainPage::ukuleleTonarium);
    if (key == QLatin1String("Violin"))
        return pageOf(&QMMusic::ViolinTonariumMainPage::violinTonarium);
    if (key == QLatin1String("Bass"))
        return pageOf(&QMMusic::BassTonariumMainPage::bassTonarium);
    if (key == QLatin1String("Balalaika"))
        return pageOf(&QMMusic::BalalaikaTonariumMainPage::balalaikaTonarium);
    if (key == QLatin1String("Banjo"))
        return pageOf(&QMMusic::BanjoTonariumMainPage::banjoTonarium);
    if (key == QLatin1String("Mandolin"))
        return pageOf(&QMMusic::MandolinTonariumMainPage::mandolinTonarium);
    if (key == QLatin1String("Piano")) {
        auto window = std::make_unique<QMMusic::PianoTonariumMainPage>();
        QMMusic::PianoTonarium* finder = window->pianoTonarium();
        return pageWith(std::move(window), finder->decoratedNotesWidget(), finder->pianoBoard());
    }
    return guitarPage();
}

Page makePage(const QString& key)
{
    Page page = newPage(key);
    QMWidgets::CorvaneProducts::addTo(page->promoMenuBar());
    page->addShopMenu();
    page->resize(kPageSize);
    page->show();
    settle();
    return page;
}

// The notes the scenes show: the guitar's, or on another instrument notes
// at the same distance above its lowest note, moved to a natural.
QString sceneNote(const QString& key, const QString& guitarNote)
{
    const QMMusic::FingerboardDesign& design = QMMusic::FingerboardDesign::forKey(key);
    if (design.openNotes.isEmpty())
        return guitarNote;
    static const char* const letters = "C D EF G A B";
    const int guitarLowest = 40; // E2
    const int octave = guitarNote.mid(1, 1).toInt();
    const int midi = (octave + 1) * 12 + int(strchr(letters, guitarNote.at(0).toLatin1()) - letters);
    int note = design.lowestNote + (midi - guitarLowest);
    while (letters[note % 12] == ' ')
        ++note;
    return QLatin1Char(letters[note % 12]) + QString::number(note / 12 - 1);
}

QImage grab(QWidget* widget)
{
    settle();
    return widget->grab().toImage();
}

QRectF geometryIn(const QWidget* widget, const QWidget* ancestor)
{
    return QRectF(widget->mapTo(ancestor, QPoint(0, 0)), widget->size());
}

// Shows a note as a press on the board does, without sounding it.
void showNote(Page& page, const QString& name, int accidental)
{
    page.setNote(name, accidental);
    page.notes->slotShowNote(name, accidental);
}

// The places of a position on the board, one box per place, in page
// coordinates.
QList<QRectF> placesOf(Page& page, const QString& positionName)
{
    const QFrame* board = page.board;
    QList<QRectF> boxes;
    for (int y = 0; y < board->height(); y += 3) {
        for (int x = 0; x < board->width(); x += 3) {
            if (page.positionToNote(x, y) != positionName)
                continue;
            const QPointF point = board->mapTo(page.get(), QPoint(x, y));
            bool merged = false;
            for (QRectF& box : boxes) {
                if (box.adjusted(-6, -6, 6, 6).contains(point)) {
                    box = box.united(QRectF(point, QSizeF(1, 1)));
                    merged = true;
                    break;
                }
            }
            if (!merged)
                boxes.append(QRectF(point, QSizeF(1, 1)));
        }
    }
    return boxes;
}

QPushButton* buttonWithText(const QWidget* parent, const QString& text)
{
    for (QPushButton* button : parent->findChildren<QPushButton*>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void click(QPushButton* button)
{
    if (button)
        button->click();
    settle();
}

SlideScenes::Scene welcome(const QString& key)
{
    Page page = makePage(key);
    showNote(page, sceneNote(key, QStringLiteral("C3")), 0);
    return { grab(page.get()), {} };
}

SlideScenes::Scene findOnNeck(const QString& key)
{
    Page page = makePage(key);
    const QString note = sceneNote(key, QStringLiteral("A3"));
    showNote(page, note, 0);
    return { grab(page.get()), placesOf(page, note) };
}

SlideScenes::Scene staffAndSigns(const QString& key)
{
    Page page = makePage(key);
    showNote(page, sceneNote(key, QStringLiteral("F3")), 1);
    QMMusic::DecoratedNotesWidget* decorated = page.notes;
    const QImage whole = grab(page.get());
    const QRectF area = geometryIn(decorated, page.get());
    const qreal ratio = whole.devicePixelRatio();
    QImage content = whole.copy(QRectF(area.topLeft() * ratio, area.size() * ratio).toRect());
    content.setDevicePixelRatio(ratio);

    QList<QRectF> rings;
    for (const char* name : { "SharpSignButton", "NoteLabel" }) {
        if (const QWidget* widget = decorated->findChild<QWidget*>(QLatin1String(name)))
            rings.append(geometryIn(widget, decorated));
    }
    return { content, rings };
}

SlideScenes::Scene hearNotes(const QString& key)
{
    Page page = makePage(key);
    QMMusic::NotesWidget* staff = page.notes->notesWidget();
    // A hover over the staff, as the mouse gives it: the board follows.
    const QPoint point(staff->width() / 2, staff->nameToPos(sceneNote(key, QStringLiteral("E4"))).y());
    QMouseEvent move(QEvent::MouseMove, point, staff->mapToGlobal(point), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(staff, &move);
    settle();
    const QPointF centre = staff->mapTo(page.get(), point);
    QList<QRectF> rings { QRectF(centre - QPointF(18, 14), QSizeF(36, 28)) };
    rings.append(placesOf(page, page.currentNote()));
    return { grab(page.get()), rings };
}

SlideScenes::Scene training(const QString& key)
{
    Page page = makePage(key);
    click(buttonWithText(page.board, QStringLiteral("Training")));
    QMMusic::NotesTrainerWidget* trainer = page.notes->trainerWidget();
    click(buttonWithText(trainer, QStringLiteral("Start")));
    QList<QRectF> rings;
    if (QWidget* key = trainer->keyButton(QStringLiteral("C")))
        rings.append(geometryIn(key, page.get()));
    return { grab(page.get()), rings };
}

SlideScenes::Scene report()
{
    QMap<QString, QPair<int, int>> results;
    const int rights[] = { 9, 4, 7, 3, 8, 6, 2, 9, 5, 7, 3, 6 };
    const int wrongs[] = { 1, 3, 0, 4, 2, 1, 5, 0, 2, 1, 4, 2 };
    for (int key = 0; key < QMMusic::NotesTrainerWidget::KeyCount; ++key)
        results.insert(QMMusic::NotesTrainerWidget::reportKey(key), qMakePair(rights[key], wrongs[key]));
    QMMusic::NotesLernReportDialog dialog(results);
    dialog.show();
    settle();
    return { grab(&dialog), {} };
}

SlideScenes::Scene menus(const QString& key)
{
    Page page = makePage(key);
    QMWidgets::PromoMenuBar* bar = page->promoMenuBar();
    const QImage pagePicture = grab(page.get());

    struct OpenMenu
    {
        QImage picture;
        QRectF button;
        QPointF at;
    };
    QList<OpenMenu> openMenus;
    const auto openBelow = [&](QMenu* menu, QPushButton* button, bool alignRight) {
        menu->ensurePolished();
        // Full length: adjustSize would stop at two thirds of the screen.
        menu->resize(menu->sizeHint());
        const QRectF place = geometryIn(button, page.get());
        const qreal x = alignRight ? place.right() - menu->width() : place.left();
        openMenus.append({ menu->grab().toImage(), place, QPointF(x, place.bottom() + 2) });
    };
    openBelow(bar->shopMenu(), bar->findChild<QPushButton*>(QStringLiteral("MoreButton")), false);
    openBelow(bar->appButton()->menu(), bar->appButton(), true);

    // A long menu hangs below the window, as it does on a desktop.
    qreal bottom = pagePicture.height();
    for (const OpenMenu& open : openMenus)
        bottom = qMax(bottom, open.at.y() + open.picture.height() + 8);
    QImage content(pagePicture.width(), qCeil(bottom), QImage::Format_RGB32);
    content.fill(QColor(18, 18, 18));
    QPainter painter(&content);
    painter.drawImage(0, 0, pagePicture);
    QList<QRectF> rings;
    for (const OpenMenu& open : openMenus) {
        painter.drawImage(open.at, open.picture);
        rings.append(open.button);
    }
    painter.end();
    return { content, rings };
}

// The metronome after a few beats, its eyes to one side.
std::unique_ptr<QMMusic::MetronomeMainPage> metronomePage()
{
    auto page = std::make_unique<QMMusic::MetronomeMainPage>();
    QMWidgets::CorvaneProducts::addTo(page->promoMenuBar());
    page->resize(kPageSize);
    page->show();
    settle();
    for (int tick = 0; tick < 3; ++tick)
        page->metronome()->slotTick();
    return page;
}

QVector<SlideScenes::Scene> metronomeScenes()
{
    QVector<SlideScenes::Scene> scenes;
    {
        auto page = metronomePage();
        scenes.append({ grab(page.get()), {} });
    }
    {
        auto page = metronomePage();
        QMMusic::MetronomeControls* controls = page->metronome()->controls();
        page->metronome()->controls()->setInterval(120);
        controls->setSelectListItem(120);
        QList<QRectF> rings;
        for (const char* name : { "TempoLabel" })
            rings.append(geometryIn(controls->findChild<QWidget*>(QLatin1String(name)), page.get()));
        rings.append(geometryIn(controls->tempoList(), page.get()));
        scenes.append({ grab(page.get()), rings });
    }
    {
        auto page = metronomePage();
        QMMusic::MetronomeControls* controls = page->metronome()->controls();
        QList<QRectF> rings;
        for (const char* name : { "VisibleTickButton", "AudiableTickButton", "BeatCombo" })
            rings.append(geometryIn(controls->findChild<QWidget*>(QLatin1String(name)), page.get()));
        scenes.append({ grab(page.get()), rings });
    }
    return scenes;
}

std::unique_ptr<QMMusic::TunersMainPage> tunersPage()
{
    auto page = std::make_unique<QMMusic::TunersMainPage>();
    page->resize(kPageSize);
    page->show();
    settle();
    return page;
}

// A string button held down, as a press looks while it sounds.
void holdDown(QMMusic::TuneButton* button)
{
    button->setDown(true);
    settle();
}

QVector<SlideScenes::Scene> tunersScenes()
{
    QVector<SlideScenes::Scene> scenes;
    {
        auto page = tunersPage();
        QMMusic::TunerBasePage* guitar = page->pages().at(4);
        holdDown(guitar->button(1));
        QList<QRectF> rings;
        for (int key = 0; key < 6; ++key)
            rings.append(geometryIn(guitar->button(key), page.get()));
        scenes.append({ grab(page.get()), rings });
    }
    {
        auto page = tunersPage();
        page->explorer()->instrumentButton(QStringLiteral("ViolinButton"))->click();
        holdDown(page->pages().at(0)->button(2));
        const QStringList tiles
            = { QStringLiteral("ViolinButton"), QStringLiteral("CelloButton"), QStringLiteral("DombraButton") };
        QList<QRectF> rings;
        for (const QString& tile : tiles)
            rings.append(geometryIn(page->explorer()->instrumentButton(tile), page.get()));
        scenes.append({ grab(page.get()), rings });
    }
    {
        auto page = tunersPage();
        QMMusic::TunersCommonPanel* panel = page->explorer()->commonPanel();
        panel->repeatButton()->setChecked(true);
        QMenu* menu = panel->pitchButton()->menu();
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        const QRectF pitch = geometryIn(panel->pitchButton(), page.get());
        QImage picture = grab(page.get());
        QPainter painter(&picture);
        const qreal scale = picture.width() / qreal(page->width());
        painter.scale(scale, scale);
        painter.drawImage(QPointF(pitch.left(), pitch.bottom() + 2), menu->grab().toImage());
        painter.end();
        scenes.append({ picture, { pitch, geometryIn(panel->repeatButton(), page.get()) } });
    }
    return scenes;
}

std::unique_ptr<QMMusic::ChordsWindow> chordsWindow(const QString& chord)
{
    auto window = std::make_unique<QMMusic::ChordsWindow>();
    window->resize(kPageSize);
    window->show();
    window->page()->setCurrentChord(chord);
    settle();
    return window;
}

QVector<SlideScenes::Scene> chordsScenes()
{
    QVector<SlideScenes::Scene> scenes;
    {
        auto window = chordsWindow(QStringLiteral("C"));
        QMMusic::ChordsMainPage* page = window->page();
        scenes.append({ grab(window.get()),
            { geometryIn(page->chordsPanel(), window.get()), geometryIn(page->chordView(), window.get()) } });
    }
    {
        auto window = chordsWindow(QStringLiteral("Bm"));
        QMMusic::ChordsMainPage* page = window->page();
        const QStringList song = { QStringLiteral("B\nm"), QStringLiteral("E\nm"), QStringLiteral("F #\n7"),
            QStringLiteral("A\n7"), QStringLiteral("D\n"), QStringLiteral("G\n") };
        page->setCurrentTransposerChords(song);
        settle();
        scenes.append({ grab(window.get()), { geometryIn(page->transposer(), window.get()) } });
    }
    {
        auto window = chordsWindow(QStringLiteral("G"));
        window->slotShowInstrument(QStringLiteral("ukulele"));
        settle();
        auto* button = window->page()->findChild<QPushButton*>(QStringLiteral("InstrumentButton"));
        QMenu* menu = window->instrumentMenu();
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        const QRectF place = geometryIn(button, window.get());
        QImage picture = grab(window.get());
        QPainter painter(&picture);
        const qreal scale = picture.width() / qreal(window->width());
        painter.scale(scale, scale);
        painter.drawImage(QPointF(place.left(), place.bottom() + 2), menu->grab().toImage());
        painter.end();
        scenes.append({ picture, { place } });
    }
    return scenes;
}

} // namespace

QVector<SlideScenes::Scene> SlideScenes::render(const QString& instrumentKey)
{
    if (instrumentKey == QLatin1String("Metronome"))
        return metronomeScenes();
    if (instrumentKey == QLatin1String("Tuners"))
        return tunersScenes();
    if (instrumentKey == QLatin1String("Chords"))
        return chordsScenes();
    // The piano has no training: its two scenes stay empty.
    const bool trains = instrumentKey != QLatin1String("Piano");
    return { welcome(instrumentKey), findOnNeck(instrumentKey), staffAndSigns(instrumentKey), hearNotes(instrumentKey),
        trains ? training(instrumentKey) : Scene(), trains ? report() : Scene(), menus(instrumentKey) };
}
