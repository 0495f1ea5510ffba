#pragma once

#include <QFrame>
#include <QString>
#include <QTime>

#include <array>

class QLabel;
class QPushButton;
class QTimer;

namespace QMMusic {

class ListenSwitch;
class NotesLernStatistic;

// The training panel: twelve keys to name the note that the board shows, the
// Start/Stop button, the clock of the run and the score panel.
class NotesTrainerWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(NotesTrainerWidget)

public:
    static constexpr int KeyCount = 12;

    explicit NotesTrainerWidget(QWidget* parent = nullptr);

    // Takes the note now asked; accepted in or out of a run, scores nothing.
    void setNote(const QString& note, int accidental);
    bool isTrainingStarted() const;
    void disableKeys(bool disable);
    static void applyNoteButtonDetails(QPushButton* button);

    QString currentNote() const;
    int currentAccidental() const;
    NotesLernStatistic* statistic() const;
    // The "Play to answer" switch: while it is on, a played note answers.
    ListenSwitch* listenSwitch() const;
    // The key filed under a report key ("C", "C#", ... "B"), or nullptr.
    QPushButton* keyButton(const QString& reportKey) const;

    // Report keys in chromatic order, C to B.
    static QString reportKey(int keyIndex);
    // Whether pressing the key of the report key answers the note rightly: the
    // letter of the note and its accidental, enharmonic spellings included
    // (B sharp is answered on C, C flat on B, E sharp on F, F flat on E).
    static bool isRightAnswer(const QString& reportKey, const QString& note, int accidental);
    // The rich text of the clock after the given milliseconds of a run.
    static QString clockText(int msecs);
    // The key that a letter of the computer keyboard answers, C to B, a
    // semitone higher with Shift (Shift+E is F, Shift+B is C); -1 for keys
    // other than the seven letters.
    static int keyIndexForKeyboard(int qtKey, bool shift);

signals:
    void needNextNote();
    void trainingStarted(bool started);

public slots:
    void slotStartClicked(bool checked);
    void slotTimeOut();
    void slotCClicked();
    void slotCDClicked();
    void slotDClicked();
    void slotDDClicked();
    void slotEClicked();
    void slotFClicked();
    void slotFDClicked();
    void slotGClicked();
    void slotGDClicked();
    void slotAClicked();
    void slotADClicked();
    void slotBClicked();
    // A note heard on the instrument (MIDI number): right when pitch and
    // octave are those of the asked note, filed under the key of its pitch.
    void slotNotePlayed(int note);

protected:
    // The microphone is closed with the panel.
    void hideEvent(QHideEvent* event) override;

private:
    void answer(int keyIndex);
    void score(int keyIndex, bool right);
    // The letters answer, Space starts and stops, while the panel shows.
    void addKeyboardShortcuts();

    QTimer* m_timer = nullptr;
    QLabel* m_timeLabel = nullptr;
    QPushButton* m_startButton = nullptr;
    QTime m_startTime;
    QString m_currentNote;
    int m_currentAccidental = 0;
    NotesLernStatistic* m_statistic = nullptr;
    std::array<QPushButton*, KeyCount> m_keys {};
    ListenSwitch* m_listenSwitch = nullptr;
};

} // namespace QMMusic
