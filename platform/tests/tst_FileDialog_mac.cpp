#include "FileDialog_mac.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using Platform::FileDialog_mac;

// A filter names the allowed file types; the dialog shows them as one filter.
class tst_FileDialog_mac : public QObject
{
    Q_OBJECT

private slots:
    void allowedFileTypes_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("types");
        QTest::addColumn<QString>("nameFilter");
        QTest::newRow("two types") << "*.mp3;;*.wav" << QStringList { "mp3", "wav" } << "*.mp3 *.wav";
        QTest::newRow("one type") << "*.aif" << QStringList { "aif" } << "*.aif";
        QTest::newRow("bare types") << "png;;jpg" << QStringList { "png", "jpg" } << "*.png *.jpg";
        QTest::newRow("empty parts") << ";;*.bef;;" << QStringList { "bef" } << "*.bef";
        QTest::newRow("no filter: every file") << "" << QStringList() << "";
    }

    void allowedFileTypes()
    {
        QFETCH(QString, filter);
        QFETCH(QStringList, types);
        QFETCH(QString, nameFilter);
        QCOMPARE(FileDialog_mac::allowedFileTypes(filter), types);
        QCOMPARE(FileDialog_mac::nameFilter(types), nameFilter);
    }

    void dialogOffersTheAllowedTypes()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("take.wav")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QStringList shownFilters;
        auto* poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [&]() {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            poll->stop();
            shownFilters = dialog->nameFilters();
            dialog->selectFile(QStringLiteral("take.wav"));
            static_cast<QDialog*>(dialog)->accept();
        });
        poll->start(10);
        const QString chosen = FileDialog_mac::getOpenFileName(
            nullptr, QStringLiteral("Open a take"), dir.path(), QStringLiteral("*.wav;;*.aif"));
        delete poll;
        QCOMPARE(shownFilters, QStringList(QStringLiteral("*.wav *.aif")));
        QCOMPARE(chosen, file.fileName());
    }
};

QTEST_MAIN(tst_FileDialog_mac)
#include "tst_FileDialog_mac.moc"
