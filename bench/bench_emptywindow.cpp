// The yardstick of bench_startup: a Qt window of the guitar window's size
// with nothing in it.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication app(argc, argv);
    QWidget window;
    window.resize(800, 600);
    window.setStyleSheet(QStringLiteral("background: rgb(40, 30, 24);"));
    window.show();
    return app.exec();
}
