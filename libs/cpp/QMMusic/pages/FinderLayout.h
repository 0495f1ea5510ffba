#pragma once

#include <QCoreApplication>
#include <QString>

class QFrame;
class QWidget;

namespace QMMusic {

class DecoratedNotesWidget;

// What every note finder does the same way, whatever its instrument: the
// staff's settings, the staff on paper between two side pictures above the
// board, and the guard that keeps Find Note from ending a training run.
class FinderLayout
{
    Q_DECLARE_TR_FUNCTIONS(QMMusic::FinderLayout)

public:
    // The staff of one instrument and the pictures at its sides.
    struct Staff
    {
        // "Guitar", "Ukulele", ...: names the decorated widget
        // ("DecoratedNotesWidgetUkulele") and the side labels ("UkuleleLeftLabel").
        QString key;
        // Given to the staff, which compares it in lower case.
        QString instrumentName;
        int startLine = 0;
        int lines = 0;
        int translateLines = 0;
        float paperHeightFactor = 1.0f;
        bool noBass = false;
        bool noViolin = false;
        QString leftPicture;
        QString rightPicture;
    };

    // The staff of each finder: "Guitar", "Ukulele", "Violin", "Bass",
    // "Balalaika", "Banjo", "Mandolin", "Piano"; an empty key for any other.
    static Staff staffFor(const QString& key);
    // The staff's settings, its object name and instrument name.
    static void applyStaff(DecoratedNotesWidget* notes, const Staff& staff);
    // Lays out the finder: left picture, staff, right picture in a row, the board below.
    static void layOut(QFrame* finder, DecoratedNotesWidget* notes, QWidget* board, const Staff& staff);
    // True, after telling the user why, while a training run is on.
    static bool refuseDuringTraining(QWidget* finder, DecoratedNotesWidget* notes);
};

} // namespace QMMusic
