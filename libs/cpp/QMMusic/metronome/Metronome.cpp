#include "Metronome.h"

#include "App.h"
#include "MetronomeBeats.h"
#include "MetronomeControls.h"
#include "NativeAudioPlayer.h"

#include <QBoxLayout>
#include <QPainter>
#include <QtMath>

namespace QMMusic {

namespace {

// The metronome's own looks, beside the application's style sheet: lamps
// that glow amber when lit, copper tempo buttons, the mute buttons' icons.
const char kStyle[] = R"(
QLabel#Beat { border-radius: 25px; border: 2px solid #5a3a22;
    background: qradialgradient(cx:0.4, cy:0.35, radius:0.7, stop:0 #6b4a34, stop:1 #2a1a12); }
QLabel#Beat:enabled { border: 2px solid #ffd68a;
    background: qradialgradient(cx:0.4, cy:0.35, radius:0.7, stop:0 #fff3c4, stop:0.5 #ffb347, stop:1 #c0601a); }
QLabel#TempoLabel { color: #f6e6c8; font-size: 34px; font-weight: bold; min-width: 90px; }
QPushButton#TempoIncButton { image: url(:/MetronomeTempoInc.png); border: none; min-width: 44px; min-height: 44px; }
QPushButton#TempoDecButton { image: url(:/MetronomeTempoDec.png); border: none; min-width: 44px; min-height: 44px; }
QPushButton#VisibleTickButton { image: url(:/MetronomeVisibleOn.png); border: none; min-width: 40px; min-height: 40px; }
QPushButton#VisibleTickButton:checked { image: url(:/MetronomeVisibleOff.png); }
QPushButton#AudiableTickButton { image: url(:/MetronomeAudibleOn.png); border: none; min-width: 40px; min-height: 40px; }
QPushButton#AudiableTickButton:checked { image: url(:/MetronomeAudibleOff.png); }
QPushButton#BeatButton { border: none; min-width: 0px; }
QPushButton#BeatCombo { color: #f6e6c8; font-size: 18px; font-weight: bold; min-width: 48px; min-height: 34px;
    border: 1px solid #c07a3a; border-radius: 8px; background: #3a2418; }
QTreeWidget { color: #f6e6c8; background: rgba(30, 20, 14, 200); border: 1px solid #c07a3a; border-radius: 8px;
    font-size: 15px; min-height: 150px; min-width: 150px; }
QTreeWidget::item:selected { background: #c07a3a; color: #1a100a; }
)";

double pixelRatio()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app ? app->devicePixelRatio() : 1.0;
}

} // namespace

Metronome::Metronome(QWidget* parent)
    : QFrame(parent)
    , m_controls(new MetronomeControls)
    , m_beats(new MetronomeBeats)
{
    setObjectName(QStringLiteral("Metronome"));
    setStyleSheet(QLatin1String(kStyle));
    const QMWidgets::App* app = QMWidgets::App::theApp();
    m_soundDirectory = app ? app->bundleResourcePath() : QString();

    auto* beatsRow = new QHBoxLayout;
    beatsRow->addStretch();
    beatsRow->addWidget(m_beats);
    beatsRow->addStretch();
    auto* controlsColumn = new QVBoxLayout;
    controlsColumn->setContentsMargins(0, 0, 0, 0);
    controlsColumn->setSpacing(0);
    controlsColumn->addStretch(23);
    controlsColumn->addWidget(m_controls);
    controlsColumn->addStretch(1);
    auto* controlsRow = new QHBoxLayout;
    controlsRow->addStretch(1);
    controlsRow->addLayout(controlsColumn);
    controlsRow->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(beatsRow);
    layout->addLayout(controlsRow);

    m_beats->slotSetBeats(m_controls->beatsCount());
    connect(m_controls, &MetronomeControls::beatsCountChanged, m_beats, &MetronomeBeats::slotSetBeats);
    connect(m_controls, &MetronomeControls::visibleTickChanged, this, &Metronome::slotVisibleTickChanged);
    connect(m_controls, &MetronomeControls::audibleTickChanged, this, &Metronome::slotAudibleTickChanged);
    connect(m_controls, &MetronomeControls::intervalChanged, this, &Metronome::slotTickIntervalChanged);
    connect(&m_timer, &QTimer::timeout, this, &Metronome::slotTick);
    slotTickIntervalChanged(m_controls->interval());
}

MetronomeControls* Metronome::controls() const
{
    return m_controls;
}

MetronomeBeats* Metronome::beats() const
{
    return m_beats;
}

int Metronome::tickInterval() const
{
    return m_timer.interval();
}

int Metronome::tickCounter() const
{
    return m_tickCounter;
}

int Metronome::currentBeat() const
{
    return m_currentBeat;
}

const QPixmap& Metronome::currentFrame() const
{
    return m_currentFrame;
}

void Metronome::slotTick()
{
    updateState(true);
    update();
    ++m_tickCounter;
}

void Metronome::updateState(bool advance)
{
    const int count = m_controls->beatsCount();
    if (count == 0) {
        normalBehavior(advance);
        return;
    }
    if (m_currentBeat >= count) {
        m_currentBeat = 0;
        if (m_visible)
            m_currentFrame = m_audible ? beatPix() : muteBeatPix();
        else
            m_currentFrame = m_audible ? eyesClosedPix() : closedMutePix();
        if (advance && m_audible)
            play(QStringLiteral("bell.wav"));
    }
    m_beats->setCurrentBeat(m_currentBeat);
    if (m_currentBeat != 0)
        normalBehavior(advance);
    if (advance)
        ++m_currentBeat;
}

void Metronome::normalBehavior(bool advance)
{
    const bool odd = m_tickCounter % 2 != 0;
    if (m_visible && m_audible)
        m_currentFrame = odd ? baseEyesLeftPix() : eyesRightPix();
    else if (m_visible)
        m_currentFrame = odd ? muteEyesLeftPix() : muteEyesRightPix();
    else
        m_currentFrame = m_audible ? eyesClosedPix() : closedMutePix();
    if (advance && m_audible)
        play(QStringLiteral("tick.wav"));
}

void Metronome::play(const QString& name)
{
    auto* player = new QMMultiMedia::NativeAudioPlayer;
    connect(player, &QMMultiMedia::NativeAudioPlayer::finished, player, &QObject::deleteLater);
    player->play(m_soundDirectory + name);
    // A file that cannot be played never finishes: its player goes at once.
    if (!player->isPlaying())
        player->deleteLater();
    emit soundPlayed(name);
}

void Metronome::slotVisibleTickChanged(bool checked)
{
    m_visible = !checked;
    m_beats->setVisible(m_visible);
    updateState(false);
    update();
}

void Metronome::slotAudibleTickChanged(bool checked)
{
    m_audible = !checked;
    updateState(false);
    update();
}

void Metronome::slotTickIntervalChanged(int tempo)
{
    m_timer.stop();
    m_timer.setInterval(tempo > 0 ? 60000 / tempo : 60000);
    m_timer.start();
}

const QPixmap& Metronome::cached(QPixmap& cache, const QString& resource)
{
    if (!cache.isNull())
        return cache;
    QPixmap picture(resource);
    if (picture.isNull())
        return cache;
    // Sized in device pixels here, whatever the file's name says.
    picture.setDevicePixelRatio(1.0);
    const double ratio = pixelRatio();
    cache = picture.scaled(
        qRound(width() * ratio), qRound(height() * ratio), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return cache;
}

const QPixmap& Metronome::baseEyesLeftPix()
{
    return cached(m_baseEyesLeftPix, QStringLiteral(":/BaseEyesLeft@2x.jpg"));
}

const QPixmap& Metronome::eyesRightPix()
{
    return cached(m_eyesRightPix, QStringLiteral(":/EyesRight@2x.png"));
}

const QPixmap& Metronome::beatPix()
{
    return cached(m_beatPix, QStringLiteral(":/Beat@2x.png"));
}

const QPixmap& Metronome::muteEyesLeftPix()
{
    return cached(m_muteEyesLeftPix, QStringLiteral(":/MuteEyesLeft@2x.png"));
}

const QPixmap& Metronome::muteEyesRightPix()
{
    // The name stands without the "@" as the pictures were always named.
    return cached(m_muteEyesRightPix, QStringLiteral(":/MuteEyesRight2x.png"));
}

const QPixmap& Metronome::muteBeatPix()
{
    return cached(m_muteBeatPix, QStringLiteral(":/MuteBeat@2x.png"));
}

const QPixmap& Metronome::eyesClosedPix()
{
    return cached(m_eyesClosedPix, QStringLiteral(":/EyesClosed@2x.png"));
}

const QPixmap& Metronome::closedMutePix()
{
    return cached(m_closedMutePix, QStringLiteral(":/EyesClosedMute@2x.png"));
}

void Metronome::setNeedsRecreatePixmaps()
{
    for (QPixmap* cache : { &m_baseEyesLeftPix, &m_eyesRightPix, &m_beatPix, &m_muteEyesLeftPix, &m_muteEyesRightPix,
             &m_muteBeatPix, &m_eyesClosedPix, &m_closedMutePix })
        *cache = QPixmap();
}

void Metronome::drawPixmap(QPainter* painter, const QPixmap& pixmap)
{
    const int w = width();
    const int h = height();
    const int pw = pixmap.width();
    const int ph = pixmap.height();
    const double r = pixelRatio();
    if (r > 1.0) {
        painter->drawPixmap(
            QRect(int(std::abs(w - pw / r) / r), int(std::abs(h - ph / r) / r), int(pw / r), int(ph / r)), pixmap);
    } else {
        painter->drawPixmap(std::abs(w - pw), std::abs(h - ph), pixmap);
    }
}

void Metronome::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    setNeedsRecreatePixmaps();
}

void Metronome::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    muteEyesLeftPix();
    muteEyesRightPix();
    muteBeatPix();
    eyesClosedPix();
    closedMutePix();
}

void Metronome::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.fillRect(rect(), Qt::black);
    drawPixmap(&painter, baseEyesLeftPix());
    if (!m_currentFrame.isNull())
        drawPixmap(&painter, m_currentFrame);
}

} // namespace QMMusic
