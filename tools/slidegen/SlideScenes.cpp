#include "SlideScenes.h"

#include "AppButton.h"
#include "CorvaneProducts.h"
#include "DecoratedNotesWidget.h"
#include "GuitarBoard.h"
#include "GuitarTonarium.h"
#include "GuitarTonariumMainPage.h"
#include "NotesLernReportDialog.h"
#include "NotesTrainerWidget.h"
#include "NotesWidget.h"
#include "PromoMenuBar.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QtMath>

#include <memory>

using QMMusic::GuitarTonariumMainPage;

namespace {

const QSize kPageSize(800, 600);

void settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

std::unique_ptr<GuitarTonariumMainPage> makePage()
{
    auto page = std::make_unique<GuitarTonariumMainPage>();
    QMWidgets::CorvaneProducts::addTo(page->promoMenuBar());
    page->addShopMenu();
    page->resize(kPageSize);
    page->show();
    settle();
    return page;
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
void showNote(GuitarTonariumMainPage& page, const QString& name, int accidental)
{
    QMMusic::GuitarTonarium* tonarium = page.guitarTonarium();
    tonarium->guitarBoard()->slotSetNote(name, accidental);
    tonarium->decoratedNotesWidget()->slotShowNote(name, accidental);
}

// The places of a position on the board, one box per place, in page
// coordinates.
QList<QRectF> placesOf(GuitarTonariumMainPage& page, const QString& positionName)
{
    const QMMusic::GuitarBoard* board = page.guitarTonarium()->guitarBoard();
    QList<QRectF> boxes;
    for (int y = 0; y < board->height(); y += 3) {
        for (int x = 0; x < board->width(); x += 3) {
            if (board->positionToNote(x, y) != positionName)
                continue;
            const QPointF point = board->mapTo(&page, QPoint(x, y));
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

SlideScenes::Scene welcome()
{
    auto page = makePage();
    showNote(*page, QStringLiteral("C3"), 0);
    return { grab(page.get()), {} };
}

SlideScenes::Scene findOnNeck()
{
    auto page = makePage();
    showNote(*page, QStringLiteral("A3"), 0);
    return { grab(page.get()), placesOf(*page, QStringLiteral("A3")) };
}

SlideScenes::Scene staffAndSigns()
{
    auto page = makePage();
    showNote(*page, QStringLiteral("F3"), 1);
    QMMusic::DecoratedNotesWidget* decorated = page->guitarTonarium()->decoratedNotesWidget();
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

SlideScenes::Scene hearNotes()
{
    auto page = makePage();
    QMMusic::NotesWidget* staff = page->guitarTonarium()->decoratedNotesWidget()->notesWidget();
    // A hover over the staff, as the mouse gives it: the board follows.
    const QPoint point(staff->width() / 2, staff->nameToPos(QStringLiteral("E4")).y());
    QMouseEvent move(QEvent::MouseMove, point, staff->mapToGlobal(point), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(staff, &move);
    settle();
    const QPointF centre = staff->mapTo(page.get(), point);
    QList<QRectF> rings { QRectF(centre - QPointF(18, 14), QSizeF(36, 28)) };
    rings.append(placesOf(*page, page->guitarTonarium()->guitarBoard()->currentNote()));
    return { grab(page.get()), rings };
}

SlideScenes::Scene training()
{
    auto page = makePage();
    QMMusic::GuitarTonarium* tonarium = page->guitarTonarium();
    click(buttonWithText(tonarium->guitarBoard(), QStringLiteral("Training")));
    QMMusic::NotesTrainerWidget* trainer = tonarium->decoratedNotesWidget()->trainerWidget();
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

SlideScenes::Scene menus()
{
    auto page = makePage();
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

} // namespace

QVector<SlideScenes::Scene> SlideScenes::render()
{
    return { welcome(), findOnNeck(), staffAndSigns(), hearNotes(), training(), report(), menus() };
}
