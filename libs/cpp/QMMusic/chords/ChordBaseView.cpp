#include "ChordBaseView.h"

#include "App.h"
#include "ChordPictures.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QFile>
#include <QFontMetrics>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QUrl>

namespace QMMusic {

ChordBaseView::ChordBaseView(QWidget* parent)
    : QWidget(parent)
{
    setToolTip(tr("Drag&Drop this picture to any editor"));
}

void ChordBaseView::setChordTabAndName(int chord, const QVector<int>& tab, const QString& name)
{
    m_chord = chord;
    m_chordTab = tab;
    m_chordName = name;
    update();
}

void ChordBaseView::setInstrumentName(const QString& name)
{
    m_instrumentName = name;
}

QString ChordBaseView::pianoTabToCode() const
{
    return ChordPictures::pianoCode(m_chordTab);
}

void ChordBaseView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(rect());
}

void ChordBaseView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_dragStart = event->pos();
    QWidget::mousePressEvent(event);
}

void ChordBaseView::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton)
        && (event->pos() - m_dragStart).manhattanLength() > QApplication::startDragDistance())
        startDrag();
    QWidget::mouseMoveEvent(event);
}

QMimeData* ChordBaseView::writeDragPicture(QPixmap* picture)
{
    const QString path = QDir::cleanPath(QMWidgets::App::workDirectory(true) + QStringLiteral("/Chord.png"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return nullptr;
    QPixmap pixmap(size());
    render(&pixmap, QPoint(), QRegion(), DrawWindowBackground | DrawChildren);
    const bool saved = pixmap.save(&file, "PNG");
    file.close();
    if (!saved)
        return nullptr;
    if (picture)
        *picture = pixmap;
    auto* data = new QMimeData;
    data->setUrls({ QUrl(QStringLiteral("file://") + path) });
    return data;
}

void ChordBaseView::startDrag()
{
    QPixmap picture;
    QMimeData* data = writeDragPicture(&picture);
    if (!data)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(picture.scaled(size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    drag->exec(Qt::CopyAction);
}

QString ChordBaseView::resourcePath(const QString& name)
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return QStringLiteral(":/") + (app ? app->resourceOffset() : QString()) + name;
}

double ChordBaseView::pixelRatio(const QWidget* widget)
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app ? app->devicePixelRatio() : widget->devicePixelRatioF();
}

void ChordBaseView::drawCentredPicture(QPainter* painter, const QString& resourceName) const
{
    const QPixmap source(resourcePath(resourceName));
    if (source.isNull())
        return;
    const double ratio = pixelRatio(this);
    const QPixmap scaled = source.scaled(
        QSize(int(width() * ratio), int(height() * ratio)), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const int w = int(scaled.width() / ratio);
    const int h = int(scaled.height() / ratio);
    painter->drawPixmap(
        QRect(int((width() - scaled.width() / ratio) * 0.5), int((height() - scaled.height() / ratio) * 0.5), w, h),
        scaled);
}

void ChordBaseView::drawKeyboard(QPainter* painter, bool tablature) const
{
    drawCentredPicture(painter, ChordPictures::keysName(m_chordTab, tablature));

    const int H = height();
    QFont font = painter->font();
    font.setPixelSize(H / 7 + 7);
    painter->setFont(font);
    const QFontMetrics metrics(font);
    const int w = metrics.horizontalAdvance(m_chordName);
    const int h = metrics.height();
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(255, 255, 255, 220));
    painter->drawRect(QRect(QPoint((width() - w) / 2, 0), QPoint((width() - w) / 2 + w - 1, h - 1)));

    painter->setPen(QPen(Qt::black, H / 50));
    painter->drawText(QRect(0, 0, width() - 1, H - 1), Qt::AlignHCenter, m_chordName);
}

} // namespace QMMusic
