#include "PlayListModel.h"
#include "RecordedSound.h"
#include "TestSounds.h"

#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QtTest>

using namespace QMMultiMedia;

// The model of a play list as a view sees it, checked throughout by Qt's model tester.
class tst_PlayListModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void roles_data();
    void roles();
    void everyChangeResetsTheModel();
    void folderWithNameFilters();
    void editing();
    void header_data();
    void header();

private:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

void tst_PlayListModel::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(TestSounds::writeSineWave(path(QStringLiteral("two.wav")), 2.5, 440.0, 8000));
    QVERIFY(TestSounds::writeSineWave(path(QStringLiteral("one.wav")), 1.0, 440.0, 8000, 2));
    QVERIFY(RecordedSound::writeWithSndfile(path(QStringLiteral("tone.flac")), SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 3.2));
    QVERIFY(RecordedSound::writeWithSndfile(path(QStringLiteral("tone.ogg")), SF_FORMAT_OGG | SF_FORMAT_VORBIS, 2.1));
    QVERIFY(RecordedSound::writeWithSndfile(path(QStringLiteral("tone.opus")), SF_FORMAT_OGG | SF_FORMAT_OPUS, 1.5));
    QVERIFY(RecordedSound::writeWithSndfile(path(QStringLiteral("tone.aiff")), SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 4.0));
    QVERIFY(RecordedSound::writeWithSndfile(path(QStringLiteral("tone.caf")), SF_FORMAT_CAF | SF_FORMAT_PCM_16, 0.5));
    QVERIFY(TestSounds::writeSineWave(path(QStringLiteral("long.wav")), 61.0, 440.0, 8000));
    QFile damaged(path(QStringLiteral("damaged.wav")));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("RIFF\x10\0\0\0WAVEjunk") > 0);
    damaged.close();
    QFile empty(path(QStringLiteral("empty.mp3")));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
}

void tst_PlayListModel::roles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QTime>("duration");

    QTest::newRow("two and a half seconds") << "two.wav" << QTime(0, 0, 2);
    QTest::newRow("one second in stereo") << "one.wav" << QTime(0, 0, 1);
    QTest::newRow("longer than any sample") << "long.wav" << QTime(0, 1, 1);
    QTest::newRow("FLAC") << "tone.flac" << QTime(0, 0, 3);
    QTest::newRow("Ogg Vorbis") << "tone.ogg" << QTime(0, 0, 2);
    QTest::newRow("Opus") << "tone.opus" << QTime(0, 0, 1);
    QTest::newRow("24-bit AIFF") << "tone.aiff" << QTime(0, 0, 4);
    QTest::newRow("half a second of CAF") << "tone.caf" << QTime(0, 0, 0);
    QTest::newRow("damaged file") << "damaged.wav" << QTime(0, 0, 0);
    QTest::newRow("zero-length file") << "empty.mp3" << QTime(0, 0, 0);
    QTest::newRow("missing file") << "missing.wav" << QTime(0, 0, 0);
}

// Each file in the middle of a list, between two good ones.
void tst_PlayListModel::roles()
{
    QFETCH(QString, name);
    QFETCH(QTime, duration);

    PlayListModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPlayList(QStringList { path(QStringLiteral("one.wav")), path(name), path(QStringLiteral("two.wav")) });
    QCOMPARE(model.rowCount(), 3);
    const QModelIndex index = model.index(1);
    QCOMPARE(model.data(index, Qt::DisplayRole).toString(), name);
    QCOMPARE(model.data(index, Qt::EditRole).toString(), name);
    QCOMPARE(model.data(index, PlayListModel::PathRole).toString(), path(name));
    QCOMPARE(model.data(index, PlayListModel::DurationRole).toTime(), duration);
    QCOMPARE(model.data(index, PlayListModel::ModifiedRole).toDateTime(), QFileInfo(path(name)).lastModified());
    QVERIFY(!model.data(index, Qt::ToolTipRole).isValid());
    QVERIFY(!model.data(index, 258).isValid());
    QCOMPARE(model.data(model.index(2), PlayListModel::DurationRole).toTime(), QTime(0, 0, 2));
    QCOMPARE(model.audioFileDuration(path(name)), duration);
}

void tst_PlayListModel::everyChangeResetsTheModel()
{
    PlayListModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

    model.setPlayList(QStringList { path(QStringLiteral("one.wav")) });
    model.appendToPlayList(QStringList { path(QStringLiteral("two.wav")), path(QStringLiteral("damaged.wav")) });
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.data(model.index(1), PlayListModel::DurationRole).toTime(), QTime(0, 0, 2));
    model.setPlayList(QStringList { path(QStringLiteral("two.wav")) });
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole).toString(), QStringLiteral("two.wav"));
    QCOMPARE(aboutToReset.count(), 3);
    QCOMPARE(reset.count(), 3);
}

void tst_PlayListModel::folderWithNameFilters()
{
    PlayListModel model;
    model.setPlayList(QDir(m_dir.path()), QStringList { QStringLiteral("*.wav") });
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.data(model.index(row)).toString());
    QCOMPARE(names, (QStringList { "damaged.wav", "long.wav", "one.wav", "two.wav" }));
}

void tst_PlayListModel::editing()
{
    PlayListModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPlayList(QStringList { path(QStringLiteral("one.wav")) });
    const QModelIndex index = model.index(0);
    QVERIFY(model.flags(index) & Qt::ItemIsEditable);
    QVERIFY(!(model.flags(QModelIndex()) & Qt::ItemIsEditable));

    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(index, path(QStringLiteral("two.wav")), Qt::DisplayRole));
    QVERIFY(!model.setData(QModelIndex(), path(QStringLiteral("two.wav"))));
    QCOMPARE(changed.count(), 0);
    QVERIFY(model.setData(index, path(QStringLiteral("two.wav"))));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(model.data(index, PlayListModel::PathRole).toString(), path(QStringLiteral("two.wav")));
    QCOMPARE(model.data(index).toString(), QStringLiteral("two.wav"));
}

void tst_PlayListModel::header_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("across") << 0 << int(Qt::Horizontal) << int(Qt::DisplayRole) << QVariant(QStringLiteral("Number"));
    QTest::newRow("down, the section's number") << 7 << int(Qt::Vertical) << int(Qt::DisplayRole) << QVariant(7);
    QTest::newRow("another role") << 0 << int(Qt::Horizontal) << int(Qt::ToolTipRole) << QVariant();
}

void tst_PlayListModel::header()
{
    QFETCH(int, section);
    QFETCH(int, orientation);
    QFETCH(int, role);
    QFETCH(QVariant, expected);
    PlayListModel model;
    QCOMPARE(model.headerData(section, Qt::Orientation(orientation), role), expected);
}

QTEST_GUILESS_MAIN(tst_PlayListModel)
#include "tst_PlayListModel.moc"
