#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// Every text the sources pass through tr() has a finished German and Russian
// translation: lupdate refreshes a copy of each catalogue from the current
// sources, and any entry left unfinished or empty fails.
class tst_Catalogues : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();

private:
    static QStringList sourceFiles(const QStringList& folders);
    static QStringList unfinishedTexts(const QString& tsFile, int* messages);
};

QStringList tst_Catalogues::sourceFiles(const QStringList& folders)
{
    QStringList files;
    for (const QString& folder : folders) {
        QDirIterator it(QStringLiteral(QM_SOURCE_ROOT) + folder, { QStringLiteral("*.cpp"), QStringLiteral("*.h") },
            QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next();
            if (!file.contains(QStringLiteral("/tests/")))
                files << file;
        }
    }
    files.sort();
    return files;
}

QStringList tst_Catalogues::unfinishedTexts(const QString& tsFile, int* messages)
{
    QFile file(tsFile);
    if (!file.open(QIODevice::ReadOnly))
        return { QStringLiteral("cannot read ") + tsFile };
    QStringList unfinished;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value(QStringLiteral("type")).toString();
            if (type == QLatin1String("obsolete") || type == QLatin1String("vanished")) {
                xml.skipCurrentElement();
                continue;
            }
            ++*messages;
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (type == QLatin1String("unfinished") || text.trimmed().isEmpty())
                unfinished << context + QStringLiteral(": ") + source;
        }
    }
    if (xml.hasError())
        unfinished << xml.errorString();
    return unfinished;
}

void tst_Catalogues::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QStringList>("folders");
    const QStringList libraries = { QStringLiteral("libs"), QStringLiteral("platform") };
    const QStringList application = { QStringLiteral("app") };
    QTest::newRow("libraries, German") << "libs_de" << libraries;
    QTest::newRow("libraries, Russian") << "libs_ru" << libraries;
    QTest::newRow("application, German") << "GuitarTonarium_de" << application;
    QTest::newRow("application, Russian") << "GuitarTonarium_ru" << application;
}

void tst_Catalogues::everyTextIsTranslated()
{
    QFETCH(QString, catalogue);
    QFETCH(QStringList, folders);

    QTemporaryDir dir;
    const QString ts = dir.path() + QLatin1Char('/') + catalogue + QStringLiteral(".ts");
    QVERIFY(QFile::copy(QStringLiteral(QM_SOURCE_ROOT "translations/") + catalogue + QStringLiteral(".ts"), ts));
    QFile::setPermissions(ts, QFileDevice::ReadOwner | QFileDevice::WriteOwner);

    const QString list = dir.path() + QStringLiteral("/sources.lst");
    QFile listFile(list);
    QVERIFY(listFile.open(QIODevice::WriteOnly | QIODevice::Text));
    const QStringList files = sourceFiles(folders);
    listFile.write(files.join(QLatin1Char('\n')).toUtf8());
    listFile.close();

    QProcess lupdate;
    lupdate.start(QStringLiteral(QM_LUPDATE),
        { QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"), QLatin1Char('@') + list,
            QStringLiteral("-ts"), ts });
    QVERIFY(lupdate.waitForFinished(120000));
    QCOMPARE(lupdate.exitCode(), 0);

    int messages = 0;
    const QStringList unfinished = unfinishedTexts(ts, &messages);
    QVERIFY2(unfinished.isEmpty(),
        qPrintable(QStringLiteral("%1 of %2 texts without translation:\n  ").arg(unfinished.size()).arg(messages)
            + unfinished.join(QStringLiteral("\n  "))));
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_Catalogues.moc"
