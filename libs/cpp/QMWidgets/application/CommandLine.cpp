#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace QMWidgets {

CommandLine::Outcome CommandLine::parse(const QStringList& arguments, const QString& description)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    Outcome outcome;
    if (!parser.parse(arguments)) {
        outcome.exitCode = 2;
        outcome.error = parser.errorText() + QLatin1Char('\n') + parser.helpText();
    } else if (parser.isSet(help)) {
        outcome.exitCode = 0;
        outcome.out = parser.helpText();
    } else if (parser.isSet(version)) {
        outcome.exitCode = 0;
        outcome.out = QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion()
            + QLatin1Char('\n');
    }
    return outcome;
}

int CommandLine::handle(const QString& description)
{
    const Outcome outcome = parse(QCoreApplication::arguments(), description);
    if (!outcome.out.isEmpty())
        std::fputs(qPrintable(outcome.out), stdout);
    if (!outcome.error.isEmpty())
        std::fputs(qPrintable(outcome.error), stderr);
    return outcome.exitCode;
}

} // namespace QMWidgets
