#include "TunerBasePage.h"

#include "App.h"
#include "AudioPoolPlayer.h"
#include "ButtonsPanel.h"
#include "FamilyPrograms.h"
#include "ListenSwitch.h"
#include "ModesPanel.h"
#include "MusicShopBase.h"
#include "PitchListener.h"
#include "PitchTracker.h"
#include "TuneButton.h"
#include "TunerNeedle.h"
#include "TunersCommonPanel.h"

#include <QPainter>
#include <QSignalMapper>
#include <QVBoxLayout>

#include <cstdlib>

namespace QMMusic {

TunerBasePage::TunerBasePage(QWidget* parent)
    : QFrame(parent)
{
    // Tuning references are quiet on purpose; this holds for every sample of the program from now on.
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(6);

    setObjectName(QStringLiteral("TunerPage"));
    // Kept for the style's sake and not painted: the page paints black behind the picture.
    m_background = QPixmap(QStringLiteral(":/background.png"));
    if (const QMWidgets::App* app = QMWidgets::App::theApp())
        m_resourceDirectory = app->bundleResourcePath();
    setMinimumWidth(300);

    m_modesPanel = new ModesPanel(this);
    m_buttonsPanel = new ButtonsPanel(this);
    connect(m_modesPanel, &TunersCommonPanel::repeatModeChangedTo, m_buttonsPanel, &ButtonsPanel::slotSetRepeatMode);

    m_listenSwitch = new ListenSwitch(staticMetaObject.className(), QT_TR_NOOP("Listen"), this);
    m_needle = new TunerNeedle(this);
    m_needle->hide();
    const QMMultiMedia::PitchListener* listener = m_listenSwitch->listener();
    connect(listener, &QMMultiMedia::PitchListener::listeningChanged, this, &TunerBasePage::slotListeningChanged);
    connect(listener, &QMMultiMedia::PitchListener::pitchChanged, this, &TunerBasePage::slotHeard);
    connect(listener, &QMMultiMedia::PitchListener::silenced, m_needle, &TunerNeedle::setSilent);

    auto* listenRow = new QHBoxLayout;
    listenRow->setContentsMargins(10, 6, 10, 6);
    listenRow->addStretch(1);
    listenRow->addWidget(m_listenSwitch);
    listenRow->addStretch(1);
    auto* needleRow = new QHBoxLayout;
    needleRow->setContentsMargins(10, 0, 10, 0);
    needleRow->addWidget(m_needle);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_modesPanel);
    layout->addLayout(listenRow);
    layout->addLayout(needleRow);
    layout->addStretch(1);
    layout->addWidget(m_buttonsPanel);
}

void TunerBasePage::fill(const char* picture, std::initializer_list<TuneString> strings, const MusicShopBase& shop)
{
    setPicture(QPixmap(QLatin1String(picture)));
    m_signalMapper = new QSignalMapper(this);
    connect(m_signalMapper, &QSignalMapper::mappedString, this, &TunerBasePage::slotPlay);
    int key = 0;
    for (const TuneString& string : strings) {
        TuneButton* tuneButton = button(key++);
        tuneButton->setText(QLatin1String(string.text));
        tuneButton->show();
        connect(tuneButton, &TuneButton::play, m_signalMapper, qOverload<>(&QSignalMapper::map));
        m_signalMapper->setMapping(tuneButton, m_resourceDirectory + QLatin1String(string.pattern));
        m_patterns.append(QLatin1String(string.pattern));
    }
    fillMoreMenu(shop);
}

void TunerBasePage::fillMoreMenu(const MusicShopBase& shop)
{
    // The family's other programs stand where a store would list its apps:
    // the note finders, then the rest.
    const QVector<QMWidgets::FamilyPrograms::Program> programs = QMWidgets::FamilyPrograms::available();
    for (const bool finders : { true, false }) {
        for (const QMWidgets::FamilyPrograms::Program& program : programs) {
            if (program.finder == finders)
                m_modesPanel->addMenuAction(QMWidgets::FamilyPrograms::makeAction(program, m_modesPanel));
        }
        m_modesPanel->addMenuSeparator();
    }
    m_modesPanel->addBaseActions();
    m_modesPanel->setMustHave(shop.mustHave());
    m_modesPanel->setNiceToHave(shop.niceToHave());
    m_modesPanel->setRead(shop.read());
    m_modesPanel->setHear(shop.hear());
    m_modesPanel->setSee(shop.see());
    m_modesPanel->setWikipedia(shop.wikipedia());
}

void TunerBasePage::setBackground(const QPixmap& background)
{
    m_background = background;
}

void TunerBasePage::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    scalePicture();
    update();
}

TuneButton* TunerBasePage::button(int key) const
{
    return m_buttonsPanel->button(key);
}

ModesPanel* TunerBasePage::modesPanel() const
{
    return m_modesPanel;
}

ButtonsPanel* TunerBasePage::buttonsPanel() const
{
    return m_buttonsPanel;
}

ListenSwitch* TunerBasePage::listenSwitch() const
{
    return m_listenSwitch;
}

TunerNeedle* TunerBasePage::needle() const
{
    return m_needle;
}

void TunerBasePage::hideAppOptions()
{
    m_modesPanel->hideAppOptions();
}

QString TunerBasePage::samplePathFor(const QString& pattern, int pitch)
{
    return pattern.arg(pitch);
}

QString TunerBasePage::samplePath(int key, int pitch) const
{
    if (key < 0 || key >= m_patterns.size())
        return QString();
    return samplePathFor(m_resourceDirectory + m_patterns.at(key), pitch);
}

void TunerBasePage::slotPlay(const QString& pattern)
{
    if (!isVisible())
        return;
    const QString path = samplePathFor(pattern, TunersCommonPanel::storedPitch());
    QMMultiMedia::AudioPoolPlayer::instance()->play(path);
    emit played(path);
}

void TunerBasePage::slotSetRepeatMode(bool on)
{
    m_buttonsPanel->slotSetRepeatMode(on);
}

void TunerBasePage::slotListeningChanged(bool listening)
{
    if (listening) {
        m_listenPitch = TunersCommonPanel::storedPitch();
        m_listenSwitch->listener()->setConcertPitch(m_listenPitch);
    }
    m_needle->setSilent();
    m_needle->setVisible(listening);
}

void TunerBasePage::slotHeard(double frequency)
{
    QVector<int> notes;
    QStringList names;
    for (int key = 0; key < m_patterns.size(); ++key) {
        const TuneButton* tuneButton = button(key);
        const int note = QMMultiMedia::PitchTracker::noteNumber(tuneButton->text(), 0);
        if (note < 0 || tuneButton->isHidden())
            continue;
        notes.append(note);
        names.append(tuneButton->text());
    }
    const int nearest = QMMultiMedia::PitchTracker::nearestString(frequency, notes, m_listenPitch);
    if (nearest < 0)
        return;
    m_needle->setReading(
        names.at(nearest), QMMultiMedia::PitchTracker::centsFrom(frequency, notes.at(nearest), m_listenPitch));
}

void TunerBasePage::hideEvent(QHideEvent* event)
{
    m_listenSwitch->slotSetOn(false);
    QFrame::hideEvent(event);
}

void TunerBasePage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(Qt::black, Qt::SolidPattern));
    painter.drawRect(0, 0, width() - 1, height() - 1);
    if (m_scaledPicture.isNull())
        return;
    const int w = m_scaledPicture.width() / 2;
    const int h = m_scaledPicture.height() / 2;
    painter.drawPixmap(std::abs(width() - w) / 2, std::abs(height() - h) / 2, w, h, m_scaledPicture);
}

void TunerBasePage::resizeEvent(QResizeEvent* event)
{
    scalePicture();
    QFrame::resizeEvent(event);
}

void TunerBasePage::scalePicture()
{
    // Scaled at twice the size and drawn at half of that, so that it stays
    // sharp on a screen of twice the density; once per size, not per paint.
    m_scaledPicture = m_picture.isNull()
        ? QPixmap()
        : m_picture.scaled(QSize(width() * 2, height() * 2), Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace QMMusic
