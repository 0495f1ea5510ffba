#include "App.h"
#include "HelpDialog.h"
#include "HelpDisplay.h"
#include "HelpViewArea.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>

using namespace QMWidgets;

namespace {

QString slidePath(int n)
{
    return QStringLiteral("/nowhere/TRXSlide%1_en.jpg").arg(n);
}

// A shown introduction of seven (missing) slides.
struct ShownDialog
{
    HelpDialog dialog;
    ShownDialog()
    {
        for (int n = 0; n < 7; ++n)
            dialog.addSlide(slidePath(n));
        dialog.show();
    }
    QString slide() const { return dialog.viewArea()->display()->slide(); }
    bool running() const { return dialog.viewArea()->isSlideShowRunning(); }
    // Lets the slide timer fire once without waiting four seconds.
    void tick() { QMetaObject::invokeMethod(dialog.viewArea()->findChild<QTimer*>(), "timeout"); }
    QPushButton* numberButton(int n) const
    {
        return dialog.findChildren<QPushButton*>(QStringLiteral("HelpSlideButton")).value(n);
    }
    QPushButton* button(const QString& text) const
    {
        for (QPushButton* button : dialog.findChildren<QPushButton*>(QStringLiteral("PushButton"))) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
};

// The application's own introduction, once it has opened.
QPointer<HelpDialog> g_applicationsDialog;

} // namespace

class TestHelpDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { App::theApp()->setSettingsValue(QStringLiteral("NeverShowItAgain"), false); }

    void slideShowRunsInACircle_data()
    {
        QTest::addColumn<int>("clicked");
        QTest::addColumn<int>("ticks");
        QTest::addColumn<int>("expectedSlide");
        QTest::newRow("opening shows the first") << -1 << 0 << 0;
        QTest::newRow("six ticks reach the last") << -1 << 6 << 6;
        QTest::newRow("seventh tick goes back to the first") << -1 << 7 << 0;
        QTest::newRow("second round") << -1 << 10 << 3;
        QTest::newRow("a click stops the show, reopening runs on from there") << 2 << 1 << 3;
        QTest::newRow("clicked last slide, reopened: round to the first") << 6 << 1 << 0;
    }

    void slideShowRunsInACircle()
    {
        QFETCH(int, clicked);
        QFETCH(int, ticks);
        QFETCH(int, expectedSlide);
        ShownDialog shown;
        QVERIFY(shown.running());
        if (clicked >= 0) {
            QTest::mouseClick(shown.numberButton(clicked), Qt::LeftButton);
            QCOMPARE(shown.slide(), slidePath(clicked));
            QVERIFY(!shown.running());
            shown.dialog.hide();
            shown.dialog.show();
            QVERIFY(shown.running());
        }
        for (int n = 0; n < ticks; ++n)
            shown.tick();
        QCOMPARE(shown.slide(), slidePath(expectedSlide));
        QVERIFY(shown.numberButton(expectedSlide)->isChecked());
    }

    void closingButtons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("neverShow");
        QTest::newRow("close") << "&Close" << int(QDialog::Rejected) << false;
        QTest::newRow("never show on start") << "&Never show on start" << int(QDialog::Accepted) << true;
    }

    void closingButtons()
    {
        QFETCH(QString, button);
        QFETCH(int, result);
        QFETCH(bool, neverShow);
        ShownDialog shown;
        QSignalSpy finished(&shown.dialog, &QDialog::finished);
        QTest::mouseClick(shown.button(button), Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().first().toInt(), result);
        QVERIFY(!shown.running());
        QCOMPARE(App::theApp()->settingsValue(QStringLiteral("NeverShowItAgain")).toBool(), neverShow);
        QCOMPARE(HelpDialog::isShowOnStartAvailable(), !neverShow);

        // Opened by hand later, it offers the never-show button only while not declined.
        shown.dialog.show();
        QCOMPARE(shown.button(QStringLiteral("&Never show on start"))->isVisible(), !neverShow);
    }

    void startUpHelpFollowsTheSetting_data()
    {
        QTest::addColumn<bool>("neverShow");
        QTest::newRow("not declined: offered after half a second") << false;
        QTest::newRow("declined: not offered") << true;
    }

    void startUpHelpFollowsTheSetting()
    {
        QFETCH(bool, neverShow);
        App::theApp()->setSettingsValue(QStringLiteral("NeverShowItAgain"), neverShow);
        // Closes the introduction as soon as it runs modal, noting that it came.
        bool opened = false;
        QTimer watcher;
        connect(&watcher, &QTimer::timeout, this, [&opened]() {
            if (auto* dialog = qobject_cast<HelpDialog*>(QApplication::activeModalWidget())) {
                opened = true;
                g_applicationsDialog = dialog;
                dialog->reject();
            }
        });
        watcher.start(10);
        App::theApp()->showHelpOnStart();
        // Started after the start-up timer with a longer delay, so it fires later.
        bool due = false;
        QTimer::singleShot(600, this, [&due]() { due = true; });
        QTRY_VERIFY_WITH_TIMEOUT(due, 5000);
        QCOMPARE(opened, !neverShow);
    }

    void noSlidesIsHarmless()
    {
        HelpDialog dialog;
        dialog.show();
        QMetaObject::invokeMethod(dialog.viewArea()->findChild<QTimer*>(), "timeout");
        QVERIFY(dialog.viewArea()->display()->slide().isEmpty());
    }

    void slideIsCentredOnBlack_data()
    {
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QSize>("scaledPicture");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("tall frame: bars above and below")
            << QSize(400, 400) << QSize(800, 600) << QRect(0, 50, 400, 300);
        QTest::newRow("wide frame: bars left and right")
            << QSize(600, 300) << QSize(800, 600) << QRect(100, 0, 400, 300);
    }

    void slideIsCentredOnBlack()
    {
        QFETCH(QSize, frame);
        QFETCH(QSize, scaledPicture);
        QFETCH(QRect, expected);
        QCOMPARE(HelpDisplay::targetRect(frame, scaledPicture), expected);

        QTemporaryDir dir;
        QImage picture(scaledPicture, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QVERIFY(picture.save(dir.filePath(QStringLiteral("slide.png"))));
        HelpDisplay display;
        display.resize(frame);
        display.setSlide(dir.filePath(QStringLiteral("slide.png")));
        const QImage shot = display.grab().toImage();
        for (const QPoint& at : { expected.center(), QPoint(expected.left() / 2, expected.top() / 2) })
            QCOMPARE(QColor(shot.pixel(at)), QColor(expected.contains(at) ? Qt::white : Qt::black));
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    int result = 0;
    {
        App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
        TestHelpDialog test;
        result = QTest::qExec(&test, argc, argv);
    }
    // Opened with no window to belong to, the introduction still ends with the application.
    if (g_applicationsDialog) {
        std::fputs("FAIL: the introduction outlived the application\n", stderr);
        return 1;
    }
    return result;
}

#include "tst_HelpDialog.moc"
