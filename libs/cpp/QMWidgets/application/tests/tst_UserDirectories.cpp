#include "UserDirectories.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using QMWidgets::UserDirectories;

namespace {

// Points the home directory at a fresh empty folder for as long as it lives.
class ScopedHome
{
public:
    ScopedHome() { qputenv("HOME", m_dir.path().toUtf8()); }
    ~ScopedHome() { qputenv("HOME", m_previous); }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    QByteArray m_previous = qgetenv("HOME");
};

using DirectoryFunction = QString (*)(bool);

} // namespace

Q_DECLARE_METATYPE(DirectoryFunction)

class tst_UserDirectories : public QObject
{
    Q_OBJECT

private slots:
    void directoryPathsAndFirstStart_data()
    {
        QTest::addColumn<DirectoryFunction>("directory");
        QTest::addColumn<QString>("relative");
        QTest::newRow("support") << DirectoryFunction(&UserDirectories::support)
                                 << "/Library/Application Support/TonariumTest/";
        QTest::newRow("work") << DirectoryFunction(&UserDirectories::work) << "/Library/TonariumTest/";
        QTest::newRow("caches") << DirectoryFunction(&UserDirectories::caches) << "/Library/Caches/TonariumTest/";
        QTest::newRow("pictures") << DirectoryFunction(&UserDirectories::pictures) << "/Pictures/TonariumTest/";
        QTest::newRow("music") << DirectoryFunction(&UserDirectories::music) << "/Music/TonariumTest/";
        QTest::newRow("movies") << DirectoryFunction(&UserDirectories::movies) << "/Movies/TonariumTest/";
        QTest::newRow("downloads") << DirectoryFunction(&UserDirectories::downloads) << "/Downloads/TonariumTest/";
        QTest::newRow("documents hold the organisation")
            << DirectoryFunction(&UserDirectories::documents) << "/Documents/Corvane/TonariumTest/";
        QTest::newRow("data without slash")
            << DirectoryFunction(&UserDirectories::data) << "/.local/share/Corvane/TonariumTest";
    }

    void directoryPathsAndFirstStart()
    {
        QFETCH(DirectoryFunction, directory);
        QFETCH(QString, relative);
        ScopedHome home;
        const QString path = directory(false);
        QCOMPARE(path, home.path() + relative);
        QVERIFY2(!QDir(path).exists(), "asking without create must not create");
        QVERIFY(UserDirectories::noneExists());
        QCOMPARE(directory(true), path);
        QVERIFY(QDir(path).exists());
        // Any one of the application's directories tells that it ran before.
        QVERIFY(!UserDirectories::noneExists());
    }

    void unrelatedFoldersMeanAFirstStart()
    {
        ScopedHome home;
        QDir().mkpath(home.path() + QStringLiteral("/Library/Application Support/SomeoneElse"));
        QDir().mkpath(home.path() + QStringLiteral("/Music"));
        QVERIFY(UserDirectories::noneExists());
    }
};

int main(int argc, char* argv[])
{
    for (const char* name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DOCUMENTS_DIR" })
        qunsetenv(name);
    QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("TonariumTest"));
    tst_UserDirectories test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_UserDirectories.moc"
