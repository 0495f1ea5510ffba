#pragma once

#include <QFrame>
#include <QPixmap>
#include <QString>
#include <QTimer>

namespace QMMusic {

class MetronomeBeats;
class MetronomeControls;

// A face whose eyes swing left and right on each tick, a row of beat lamps
// and the controls. The first beat of a bar rings a bell, the others tick.
// The timer runs from construction to destruction: the mute buttons are the
// only way to quiet it. Its accuracy is what a plain repeating QTimer gives.
class Metronome : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(Metronome)

public:
    explicit Metronome(QWidget* parent = nullptr);

    MetronomeControls* controls() const;
    MetronomeBeats* beats() const;
    int tickInterval() const;
    int tickCounter() const;
    int currentBeat() const;
    const QPixmap& currentFrame() const;

    // Chooses the frame and, when advance is set, sounds the beat and moves
    // on in the bar.
    void updateState(bool advance);
    // A beat that is not the first of its bar.
    void normalBehavior(bool advance);
    // Plays a file of the sound directory on a player of its own.
    void play(const QString& name);
    // Drops the pictures scaled for the old size.
    void setNeedsRecreatePixmaps();
    void drawPixmap(QPainter* painter, const QPixmap& pixmap);

    const QPixmap& baseEyesLeftPix();
    const QPixmap& eyesRightPix();
    const QPixmap& beatPix();
    const QPixmap& muteEyesLeftPix();
    const QPixmap& muteEyesRightPix();
    const QPixmap& muteBeatPix();
    const QPixmap& eyesClosedPix();
    const QPixmap& closedMutePix();

signals:
    // A sound was started, by its file name ("tick.wav", "bell.wav").
    void soundPlayed(const QString& name);

public slots:
    void slotTick();
    void slotVisibleTickChanged(bool checked);
    void slotAudibleTickChanged(bool checked);
    void slotTickIntervalChanged(int tempo);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const QPixmap& cached(QPixmap& cache, const QString& resource);

    MetronomeControls* m_controls = nullptr;
    MetronomeBeats* m_beats = nullptr;
    QPixmap m_baseEyesLeftPix;
    QPixmap m_eyesRightPix;
    QPixmap m_beatPix;
    QPixmap m_muteEyesLeftPix;
    QPixmap m_muteEyesRightPix;
    QPixmap m_muteBeatPix;
    QPixmap m_eyesClosedPix;
    QPixmap m_closedMutePix;
    QPixmap m_currentFrame;
    QTimer m_timer;
    int m_tickCounter = 0;
    bool m_visible = true;
    bool m_audible = true;
    int m_currentBeat = 0;
    QString m_soundDirectory;
};

} // namespace QMMusic
