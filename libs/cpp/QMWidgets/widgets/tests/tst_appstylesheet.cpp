#include "AppStyleSheet.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QtTest>

using QMWidgets::AppStyleSheet;

namespace {

QStringList s_messages;

} // namespace

class TestAppStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void everyNamedPictureIsCompiledIn_data()
    {
        QTest::addColumn<QString>("resource");
        QSet<QString> seen;
        auto it = QRegularExpression(QStringLiteral("url\\((:[^)]+)\\)")).globalMatch(AppStyleSheet::text());
        while (it.hasNext()) {
            const QString resource = it.next().captured(1);
            if (!seen.contains(resource))
                QTest::newRow(qPrintable(resource)) << resource;
            seen.insert(resource);
        }
        QVERIFY(seen.size() > 50);
    }

    void everyNamedPictureIsCompiledIn()
    {
        QFETCH(QString, resource);
        QVERIFY2(QFile::exists(resource), qPrintable(resource));
    }

    void appliesWithoutParseWarnings()
    {
        s_messages.clear();
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { s_messages.append(message); });
        qApp->setStyleSheet(AppStyleSheet::text());
        QDialog dialog;
        QPushButton key(QStringLiteral("C"), &dialog);
        key.setObjectName(QStringLiteral("Key"));
        QLabel label(QStringLiteral("A2"), &dialog);
        label.setObjectName(QStringLiteral("NoteLabel"));
        QTabBar tabs(&dialog);
        tabs.addTab(QStringLiteral("one"));
        QMenu menu(&dialog);
        menu.addAction(QStringLiteral("About"));
        dialog.show();
        menu.popup(QPoint(10, 10));
        QCoreApplication::processEvents();
        menu.close();
        qInstallMessageHandler(previous);

        const QRegularExpression trouble(QStringLiteral("style|parse"), QRegularExpression::CaseInsensitiveOption);
        QVERIFY2(s_messages.filter(trouble).isEmpty(), qPrintable(s_messages.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestAppStyleSheet)
#include "tst_appstylesheet.moc"
