#pragma once

#include <QCoreApplication>
#include <QVector>

class QAction;
class QObject;

namespace QMWidgets {

// The other programs of this family that are installed beside the running
// one: the note finders, then the chord, tuner and metronome programs. A
// program whose executable is missing is simply not offered.
class FamilyPrograms
{
public:
    struct Program
    {
        const char* executable;
        const char* title;
        bool finder;
    };

    // In menu order, without the running program itself.
    static QVector<Program> available(const QString& directory = QCoreApplication::applicationDirPath());

    // Starts the program as a process of its own; false if it could not be started.
    static bool start(const char* executable, const QString& directory = QCoreApplication::applicationDirPath());

    // A menu entry that starts the program, with its desktop icon where the theme has one.
    static QAction* makeAction(const Program& program, QObject* parent);
};

} // namespace QMWidgets
