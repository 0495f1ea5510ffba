#include "NotesTrainerWidget.h"

#include "ListenSwitch.h"
#include "NotesLernStatistic.h"
#include "PitchListener.h"
#include "PitchTracker.h"
#include "TimeInfo.h"

#include <QBoxLayout>
#include <QDebug>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

namespace QMMusic {

namespace {

// One note spelling: letter and accidental (-1 flat, 0 natural, 1 sharp).
struct Spelling
{
    char letter;
    int accidental;
};

// The twelve keys in chromatic order: report key, whether the key is black,
// and the spellings it answers (the second is empty where there is none).
struct KeyInfo
{
    const char* reportKey;
    bool black;
    Spelling first;
    Spelling second;
};

const std::array<KeyInfo, NotesTrainerWidget::KeyCount> s_keys = { {
    { "C", false, { 'C', 0 }, { 'B', 1 } },
    { "C#", true, { 'C', 1 }, { 'D', -1 } },
    { "D", false, { 'D', 0 }, { 0, 0 } },
    { "D#", true, { 'D', 1 }, { 'E', -1 } },
    { "E", false, { 'E', 0 }, { 'F', -1 } },
    { "F", false, { 'F', 0 }, { 'E', 1 } },
    { "F#", true, { 'F', 1 }, { 'G', -1 } },
    { "G", false, { 'G', 0 }, { 0, 0 } },
    { "G#", true, { 'G', 1 }, { 'A', -1 } },
    { "A", false, { 'A', 0 }, { 0, 0 } },
    { "A#", true, { 'A', 1 }, { 'B', -1 } },
    { "B", false, { 'B', 0 }, { 'C', -1 } },
} };

const char* const s_solfege[] = { "(do)", "(re)", "(mi)", "(fa)", "(sol)", "(la)", "(si)" };

// Any negative accidental reads as flat, any positive one as sharp.
int accidentalSign(int accidental)
{
    if (accidental < 0)
        return -1;
    return accidental >= 1 ? 1 : 0;
}

bool matches(const Spelling& spelling, QChar letter, int accidental)
{
    return spelling.letter != 0 && letter == QLatin1Char(spelling.letter)
        && accidentalSign(accidental) == spelling.accidental;
}

int keyIndexOf(const QString& reportKey)
{
    for (int i = 0; i < NotesTrainerWidget::KeyCount; ++i) {
        if (reportKey == QLatin1String(s_keys[i].reportKey))
            return i;
    }
    return -1;
}

// "C\n(do)" for a white key, "C#\nD" and the flat sign for a black one.
QString keyText(int keyIndex, int whiteIndex)
{
    const KeyInfo& key = s_keys[keyIndex];
    if (!key.black)
        return QLatin1String(key.reportKey) + QLatin1Char('\n') + QLatin1String(s_solfege[whiteIndex]);
    return QLatin1String(key.reportKey) + QLatin1Char('\n') + QLatin1Char(key.second.letter) + QChar(0x266D);
}

QHBoxLayout* centredRow(QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addStretch();
    row->addWidget(widget);
    row->addStretch();
    return row;
}

QHBoxLayout* keyRow()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(1, 1, 1, 1);
    row->setSpacing(2);
    row->addStretch();
    return row;
}

} // namespace

NotesTrainerWidget::NotesTrainerWidget(QWidget* parent)
    : QFrame(parent)
{
    m_timer = new QTimer(this);
    m_timer->setInterval(500);
    connect(m_timer, &QTimer::timeout, this, &NotesTrainerWidget::slotTimeOut);

    m_timeLabel = new QLabel(QStringLiteral("<FONT COLOR='black'><H3>00:00:00</H3></FONT>"), this);

    m_startButton = new QPushButton(QStringLiteral("Start"), this);
    m_startButton->setObjectName(QStringLiteral("RoundButton"));
    m_startButton->setFlat(true);
    m_startButton->setCheckable(true);
    m_startButton->setFixedSize(64, 64);
    connect(m_startButton, &QPushButton::clicked, this, &NotesTrainerWidget::slotStartClicked);

    m_statistic = new NotesLernStatistic(this);

    // The answer counts on the press of the mouse, hence pressed() and not clicked().
    using Slot = void (NotesTrainerWidget::*)();
    const std::array<Slot, KeyCount> keySlots = { &NotesTrainerWidget::slotCClicked, &NotesTrainerWidget::slotCDClicked,
        &NotesTrainerWidget::slotDClicked, &NotesTrainerWidget::slotDDClicked, &NotesTrainerWidget::slotEClicked,
        &NotesTrainerWidget::slotFClicked, &NotesTrainerWidget::slotFDClicked, &NotesTrainerWidget::slotGClicked,
        &NotesTrainerWidget::slotGDClicked, &NotesTrainerWidget::slotAClicked, &NotesTrainerWidget::slotADClicked,
        &NotesTrainerWidget::slotBClicked };
    int whiteIndex = 0;
    for (int i = 0; i < KeyCount; ++i) {
        auto* key = new QPushButton(keyText(i, whiteIndex), this);
        applyNoteButtonDetails(key);
        key->setObjectName(s_keys[i].black ? QStringLiteral("Keyd") : QStringLiteral("Key"));
        connect(key, &QPushButton::pressed, this, keySlots[i]);
        m_keys[i] = key;
        if (!s_keys[i].black)
            ++whiteIndex;
    }
    disableKeys(true);
    addKeyboardShortcuts();

    m_listenSwitch = new ListenSwitch(staticMetaObject.className(), QT_TR_NOOP("Play to answer"), this);
    // Drawn as the score panel's "Full Report" button.
    m_listenSwitch->button()->setObjectName(QStringLiteral("PushButton"));
    connect(m_listenSwitch->listener(), &QMMultiMedia::PitchListener::notePlayed, this,
        &NotesTrainerWidget::slotNotePlayed);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(2);
    layout->addWidget(m_statistic);
    layout->addStretch(1);
    layout->addLayout(centredRow(m_startButton));
    layout->addLayout(centredRow(m_timeLabel));
    layout->addLayout(centredRow(m_listenSwitch));
    layout->addStretch(1);

    // The gap of 42 stands for the black key that is missing between E and F.
    QHBoxLayout* blackRow = keyRow();
    QHBoxLayout* whiteRow = keyRow();
    for (int i = 0; i < KeyCount; ++i) {
        if (s_keys[i].black) {
            if (i == 6)
                blackRow->addSpacing(42);
            blackRow->addWidget(m_keys[i]);
        } else {
            whiteRow->addWidget(m_keys[i]);
        }
    }
    blackRow->addStretch();
    whiteRow->addStretch();
    layout->addLayout(blackRow);
    layout->addLayout(whiteRow);
}

void NotesTrainerWidget::setNote(const QString& note, int accidental)
{
    m_currentNote = note;
    m_currentAccidental = accidental;
    qDebug() << "StrNote:" << note << "; " << accidental;
}

bool NotesTrainerWidget::isTrainingStarted() const
{
    return m_startButton->isChecked();
}

void NotesTrainerWidget::disableKeys(bool disable)
{
    for (QPushButton* key : m_keys)
        key->setDisabled(disable);
}

void NotesTrainerWidget::applyNoteButtonDetails(QPushButton* button)
{
    button->setObjectName(QStringLiteral("PushButton"));
    button->setFlat(true);
    button->setFixedSize(44, 44);
}

QString NotesTrainerWidget::currentNote() const
{
    return m_currentNote;
}

int NotesTrainerWidget::currentAccidental() const
{
    return m_currentAccidental;
}

NotesLernStatistic* NotesTrainerWidget::statistic() const
{
    return m_statistic;
}

ListenSwitch* NotesTrainerWidget::listenSwitch() const
{
    return m_listenSwitch;
}

QPushButton* NotesTrainerWidget::keyButton(const QString& reportKey) const
{
    const int index = keyIndexOf(reportKey);
    return index < 0 ? nullptr : m_keys[index];
}

QString NotesTrainerWidget::reportKey(int keyIndex)
{
    if (keyIndex < 0 || keyIndex >= KeyCount)
        return QString();
    return QLatin1String(s_keys[keyIndex].reportKey);
}

bool NotesTrainerWidget::isRightAnswer(const QString& reportKey, const QString& note, int accidental)
{
    const int index = keyIndexOf(reportKey);
    if (index < 0 || note.isEmpty())
        return false;
    // Only the letter counts: the octave plays no part in the answer.
    const QChar letter = note.at(0);
    return matches(s_keys[index].first, letter, accidental) || matches(s_keys[index].second, letter, accidental);
}

QString NotesTrainerWidget::clockText(int msecs)
{
    return QStringLiteral("<FONT COLOR='black'><H3>")
        + MTools::TimeInfo::msecsToTime(msecs).toString(QStringLiteral("hh:mm:ss")) + QStringLiteral("</H3></FONT>");
}

void NotesTrainerWidget::slotStartClicked(bool checked)
{
    m_startButton->setText(checked ? tr("Stop") : tr("Start"));
    if (checked) {
        // The first note is drawn before the board hears of the run.
        emit needNextNote();
        m_statistic->reset();
        m_startTime = QTime::currentTime();
        m_timer->start();
        disableKeys(false);
    } else {
        m_timer->stop();
        disableKeys(true);
    }
    emit trainingStarted(checked);
}

void NotesTrainerWidget::slotTimeOut()
{
    m_timeLabel->setText(clockText(m_startTime.msecsTo(QTime::currentTime())));
}

void NotesTrainerWidget::answer(int keyIndex)
{
    if (!isTrainingStarted())
        return;
    score(keyIndex, isRightAnswer(reportKey(keyIndex), m_currentNote, m_currentAccidental));
}

void NotesTrainerWidget::slotNotePlayed(int note)
{
    if (!isTrainingStarted() || note < 0)
        return;
    // Played, the octave counts too: E3 does not answer an asked E2.
    score(note % KeyCount, note == QMMultiMedia::PitchTracker::noteNumber(m_currentNote, m_currentAccidental));
}

void NotesTrainerWidget::score(int keyIndex, bool right)
{
    if (right)
        m_statistic->incRight();
    else
        m_statistic->incWrong();
    // The board answers within this call with a new note through setNote.
    emit needNextNote();
    // Filed under the key pressed, not under the note that was asked.
    m_statistic->addToReport(reportKey(keyIndex), right ? qMakePair(1, 0) : qMakePair(0, 1));
}

void NotesTrainerWidget::hideEvent(QHideEvent* event)
{
    m_listenSwitch->slotSetOn(false);
    QFrame::hideEvent(event);
}

void NotesTrainerWidget::slotCClicked()
{
    answer(0);
}
void NotesTrainerWidget::slotCDClicked()
{
    answer(1);
}
void NotesTrainerWidget::slotDClicked()
{
    answer(2);
}
void NotesTrainerWidget::slotDDClicked()
{
    answer(3);
}
void NotesTrainerWidget::slotEClicked()
{
    answer(4);
}
void NotesTrainerWidget::slotFClicked()
{
    answer(5);
}
void NotesTrainerWidget::slotFDClicked()
{
    answer(6);
}
void NotesTrainerWidget::slotGClicked()
{
    answer(7);
}
void NotesTrainerWidget::slotGDClicked()
{
    answer(8);
}
void NotesTrainerWidget::slotAClicked()
{
    answer(9);
}
void NotesTrainerWidget::slotADClicked()
{
    answer(10);
}
void NotesTrainerWidget::slotBClicked()
{
    answer(11);
}

int NotesTrainerWidget::keyIndexForKeyboard(int qtKey, bool shift)
{
    static const QHash<int, int> naturals { { Qt::Key_C, 0 }, { Qt::Key_D, 2 }, { Qt::Key_E, 4 }, { Qt::Key_F, 5 },
        { Qt::Key_G, 7 }, { Qt::Key_A, 9 }, { Qt::Key_B, 11 } };
    const auto natural = naturals.constFind(qtKey);
    if (natural == naturals.constEnd())
        return -1;
    return (natural.value() + (shift ? 1 : 0)) % KeyCount;
}

void NotesTrainerWidget::addKeyboardShortcuts()
{
    for (const int letter : { Qt::Key_C, Qt::Key_D, Qt::Key_E, Qt::Key_F, Qt::Key_G, Qt::Key_A, Qt::Key_B }) {
        for (const bool shift : { false, true }) {
            const int index = keyIndexForKeyboard(letter, shift);
            auto* shortcut = new QShortcut(QKeySequence(letter | (shift ? int(Qt::SHIFT) : 0)), this);
            // A disabled key ignores the click, as it ignores the mouse.
            connect(shortcut, &QShortcut::activated, m_keys[index], [key = m_keys[index]]() { key->animateClick(); });
        }
    }
    auto* startStop = new QShortcut(QKeySequence(Qt::Key_Space), this);
    connect(startStop, &QShortcut::activated, m_startButton, &QPushButton::click);
}

} // namespace QMMusic
