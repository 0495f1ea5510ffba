#include "ID3Info.h"
#include "MediaCommon.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

// File kinds by name, and the cover found beside a sound file.
class tst_ID3Info : public QObject
{
    Q_OBJECT

private slots:
    void mediaType_data();
    void mediaType();
    void cover_data();
    void cover();
};

void tst_ID3Info::mediaType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");

    QTest::newRow("mp3") << "song.mp3" << 0;
    QTest::newRow("upper-case AIFF") << "SONG.AIFF" << 0;
    QTest::newRow("aif is not among the endings") << "song.aif" << 4;
    QTest::newRow("m4v is video") << "clip.m4v" << 1;
    QTest::newRow("two endings count by the last") << "clip.mp4.wav" << 0;
    QTest::newRow("two endings, image last") << "song.mp3.JPEG" << 2;
    QTest::newRow("tiff") << "scan.tiff" << 2;
    QTest::newRow("an ending without its dot") << "mp3" << 4;
    QTest::newRow("flac is not among the endings") << "song.flac" << 4;
    QTest::newRow("no name") << "" << 4;
}

void tst_ID3Info::mediaType()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QCOMPARE(MediaCommon::mediaType(name), type);
    QCOMPARE(MediaCommon::isAudio(name), type == 0);
    QCOMPARE(MediaCommon::isVideo(name), type == 1);
    QCOMPARE(MediaCommon::isImage(name), type == 2);
}

void tst_ID3Info::cover_data()
{
    QTest::addColumn<QStringList>("beside"); // files in the folder of the sound
    QTest::addColumn<bool>("sound"); // the sound file itself exists
    QTest::addColumn<QSize>("size"); // of the cover; empty: the built-in picture

    QTest::newRow("an upper-case JPG") << QStringList { "Front.JPG" } << true << QSize(30, 20);
    QTest::newRow("a picture that does not load, then one that does")
        << QStringList { "broken.png", "cover.png" } << true << QSize(30, 20);
    QTest::newRow("no picture") << QStringList { "notes.txt" } << true << QSize();
    QTest::newRow("only a broken picture") << QStringList { "broken.png" } << true << QSize();
    QTest::newRow("the sound is missing but a picture is there")
        << QStringList { "cover.bmp" } << false << QSize(30, 20);
    QTest::newRow("an empty folder and no sound") << QStringList() << false << QSize();
}

void tst_ID3Info::cover()
{
    QFETCH(QStringList, beside);
    QFETCH(bool, sound);
    QFETCH(QSize, size);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    for (const QString& name : beside) {
        if (name.startsWith(QLatin1String("broken")) || name.endsWith(QLatin1String(".txt"))) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a picture") > 0);
        } else {
            QImage picture(30, 20, QImage::Format_RGB32);
            picture.fill(Qt::red);
            QVERIFY(picture.save(dir.filePath(name), QFileInfo(name).suffix().toLatin1()));
        }
    }
    const QString song = dir.filePath(QStringLiteral("song.mp3"));
    if (sound) {
        QFile file(song);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    const ID3Info info(song);
    QVERIFY(!info.cover().isNull());
    if (size.isValid()) {
        QCOMPARE(info.cover().size(), size);
    } else {
        QPixmap builtIn(QStringLiteral(":/pix/Wrenfield.png"));
        QVERIFY(!builtIn.isNull());
        QCOMPARE(info.cover().size(), builtIn.size());
    }
    const ID3Info copy = info;
    QCOMPARE(copy.cover().cacheKey(), info.cover().cacheKey());
}

QTEST_MAIN(tst_ID3Info)
#include "tst_ID3Info.moc"
