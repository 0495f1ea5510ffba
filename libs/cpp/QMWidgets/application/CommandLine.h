#pragma once

#include <QString>
#include <QStringList>

namespace QMWidgets {

// The options every program takes: --help and --version. An option it does
// not know ends the program with the usage on the error output and status 2.
class CommandLine
{
public:
    struct Outcome
    {
        int exitCode = -1; // -1: go on and start the program
        QString out;
        QString error;
    };

    // The arguments as QCoreApplication::arguments() gives them, program first.
    static Outcome parse(const QStringList& arguments, const QString& description);
    // Parses the application's own arguments and prints what parse() gives;
    // -1 to go on, else the status the program ends with.
    static int handle(const QString& description);
};

} // namespace QMWidgets
