#include "App.h"
#include "ListenSwitch.h"
#include "PitchListener.h"
#include "PitchTracker.h"
#include "SinkSamplePlayer.h"
#include "TuneButton.h"
#include "TunerBasePage.h"
#include "TunerNeedle.h"
#include "TunersMainPage.h"

#include <QAudioDeviceInfo>
#include <QFileInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using QMMultiMedia::PitchTracker;
using QMMusic::TunerBasePage;

namespace {

// Every string at concert pitch; the guitar's also at both ends of the pitch menu.
const int s_pitches[] = { 415, 440, 460 };
// F1, 43.7 Hz.
const int kLowestHeardNote = 29;

// A tuner sample played from memory into the default sink, whose monitor the page hears.
using SamplePlayer = SinkSamplePlayer;

// The note of a sample from its file stem: "..._E2.mp3", "..._Fd2.mp3".
int noteOfSample(const QString& path)
{
    static const QRegularExpression stem(QStringLiteral("_([A-G])(d?)(\\d)\\.mp3$"));
    const QRegularExpressionMatch match = stem.match(path);
    if (!match.hasMatch())
        return -1;
    return PitchTracker::noteNumber(match.captured(1) + match.captured(3), match.captured(2).isEmpty() ? 0 : 1);
}

} // namespace

// Each tuner page, its Listen switch on, hears every tuner sample of the
// build: the note of the file, within 3 cents at the sample's concert pitch,
// and the needle names the string that the sample tunes.
class tst_TunerListening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void tunerSamples_data();
    void tunerSamples();

private:
    std::unique_ptr<QMMusic::TunersMainPage> m_main;
};

void tst_TunerListening::initTestCase()
{
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        QSKIP("no sound server");
    m_main = std::make_unique<QMMusic::TunersMainPage>();
    m_main->show();
}

void tst_TunerListening::cleanupTestCase()
{
    m_main.reset();
}

void tst_TunerListening::tunerSamples_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("pitch");
    QTest::addColumn<QString>("path");

    const QList<TunerBasePage*> pages = m_main->pages();
    for (int page = 0; page < pages.size(); ++page) {
        for (int key = 0; !pages.at(page)->samplePath(key, 440).isEmpty(); ++key) {
            for (const int pitch : s_pitches) {
                const QString path = pages.at(page)->samplePath(key, pitch);
                const bool guitar = QLatin1String(pages.at(page)->metaObject()->className()) == "QMMusic::GuitarTuner";
                // The detector's 2048-sample window holds two periods only
                // from about 43 Hz up: the double bass's and the bass
                // guitar's lowest strings lie below what it can hear.
                const bool audible = noteOfSample(path) >= kLowestHeardNote;
                if ((pitch == 440 || guitar) && audible && QFileInfo::exists(path))
                    QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(
                        pages.at(page)->metaObject()->className(), QFileInfo(path).fileName())))
                        << page << key << pitch << path;
            }
        }
    }
}

void tst_TunerListening::tunerSamples()
{
    QFETCH(int, page);
    QFETCH(int, key);
    QFETCH(int, pitch);
    QFETCH(QString, path);

    QMWidgets::App::theApp()->setSettingsValue(QStringLiteral("Pitch"), pitch);
    TunerBasePage* tuner = m_main->pages().at(page);
    m_main->stack()->setCurrentWidget(tuner);
    // The low B of the bass is shown for its own samples.
    tuner->button(key)->show();
    QMMusic::ListenSwitch* listen = tuner->listenSwitch();
    listen->listener()->setDeviceName(QStringLiteral("null.monitor"));
    listen->button()->setChecked(true);
    QVERIFY(listen->isListening());
    QVERIFY(tuner->needle()->isVisible());

    const int note = noteOfSample(path);
    QSignalSpy played(listen->listener(), &QMMultiMedia::PitchListener::notePlayed);
    QVector<double> cents;
    connect(
        listen->listener(), &QMMultiMedia::PitchListener::pitchChanged, this, [&](double, int heard, double deviation) {
            if (!played.isEmpty() && heard == note)
                cents.append(deviation);
        });
    SamplePlayer player(path);
    // Read once the pluck has settled: a tenth of a second after the note counts.
    QTRY_VERIFY_WITH_TIMEOUT(cents.size() >= 30, 5000);
    cents.remove(0, 10);
    const QString shownString = tuner->needle()->stringName();
    listen->button()->setChecked(false);
    QVERIFY(!tuner->needle()->isVisible());

    QCOMPARE(PitchTracker::noteName(played.first().at(0).toInt()), PitchTracker::noteName(note));
    std::sort(cents.begin(), cents.end());
    QVERIFY2(qAbs(cents.at(cents.size() / 2)) <= 3.0, qPrintable(QString::number(cents.at(cents.size() / 2))));
    // Where the button's name is the sample's note, the needle names that
    // string; how it settles is the needle's own test.
    if (PitchTracker::noteNumber(tuner->button(key)->text(), 0) == note)
        QCOMPARE(shownString, tuner->button(key)->text());
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tuners"));
    tst_TunerListening test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TunerListening.moc"
