#pragma once

#include <QFrame>
#include <QString>

class QAbstractButton;
class QButtonGroup;
class QPushButton;

namespace QMMusic {

// The strip of toggle buttons on which the user picks a chord: a root in one
// of 21 spellings (naturals, flats, sharps) and one of 11 types. It announces
// the chord index and its name whenever the choice is made, and turns chord
// names into indices.
class ChordsButtonsPanel : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordsButtonsPanel)

public:
    explicit ChordsButtonsPanel(QWidget* parent = nullptr);

    // The checked root's text followed by the checked type's text.
    QString currentChord() const;
    QString currentChordPart1() const;
    // Empty for a major chord.
    QString currentChordPart2() const;

    // Checks the buttons that the name starts and ends with and announces
    // the name with its index, also when nothing changed. A root that fits
    // no button leaves the root as it was; a suffix that fits none checks
    // the major button.
    void setChord(const QString& name);
    // The index of a chord name; anything else gives 131.
    int stringToChord(const QString& name);

    void hideBlank();
    void hideM();
    void hideAug();
    void hideDim();
    void hide6();
    void hideM6();
    void hide7();
    void hideM7();
    void hideMaj7();
    void hide9();
    void hideSus4();

    // The buttons of the roots in the rows natural, flat, sharp and the
    // columns A to G, and of the types in index order; for tests.
    QPushButton* rootButton(int row, int column) const;
    QPushButton* typeButton(int type) const;

signals:
    void chordChanged(int chord, const QString& name);

public slots:
    void slotButtonClicked();

private:
    static void applyPanelButtonProperties(QPushButton* button);
    static QPushButton* makeButton(const QString& text);

    QPushButton* m_naturalButtons[7] = {};
    QPushButton* m_flatButtons[7] = {};
    QPushButton* m_sharpButtons[7] = {};
    QPushButton* m_blankButton = nullptr;
    // "m", "aug", "dim", "6", "m6", "7", "m7", "maj7", "9", "sus4".
    QPushButton* m_typeButtons[10] = {};
    QButtonGroup* m_rootGroup = nullptr;
    QButtonGroup* m_typeGroup = nullptr;
    QString m_naturalNames[7];
    QString m_flatNames[7];
    QString m_sharpNames[7];
};

} // namespace QMMusic
