#include "App.h"

#include <QWidget>

int main(int argc, char* argv[])
{
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    QWidget page;
    page.setMinimumSize(800, 600);
    page.setWindowTitle(QCoreApplication::applicationName());
    page.show();
    return app.exec();
}
