#include "AboutDialog.h"
#include "App.h"

#include <QDate>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <algorithm>

using namespace QMWidgets;

class TestAboutDialog : public QObject
{
    Q_OBJECT

private slots:
    void infoText_data()
    {
        QTest::addColumn<QDate>("buildDate");
        QTest::addColumn<bool>("kidsMode");
        QTest::addColumn<QString>("mustHold");
        QTest::addColumn<QString>("mustNotHold");
        QTest::newRow("day first with dots") << QDate(2014, 8, 1) << false << "GuitarTonarium v1.2 Build: 01.08.2014"
                                             << "8/1/2014";
        QTest::newRow("year of the rights") << QDate(2016, 12, 24) << false << "2016 CORVANE"
                                            << "";
        QTest::newRow("home page linked")
            << QDate(2014, 8, 1) << false << "HREF=\"https://www.corvane.com\">corvane.com</A><BR>"
            << "";
        QTest::newRow("kids mode: domain without link") << QDate(2014, 8, 1) << true << "corvane.com<BR>"
                                                        << "<A ";
    }

    void infoText()
    {
        QFETCH(QDate, buildDate);
        QFETCH(bool, kidsMode);
        QFETCH(QString, mustHold);
        QFETCH(QString, mustNotHold);
        const QString text = AboutDialog::infoText(QStringLiteral("GuitarTonarium"), QStringLiteral("1.2"), buildDate,
            QStringLiteral("corvane.com"), QStringLiteral("https://www.corvane.com"), kidsMode);
        QVERIFY2(text.contains(mustHold), qPrintable(text));
        if (!mustNotHold.isEmpty())
            QVERIFY2(!text.contains(mustNotHold, Qt::CaseInsensitive), qPrintable(text));
    }

    void noticesKeepTheSizeAndOkReturnsToTheInfo()
    {
        AboutDialog dialog;
        dialog.show();
        dialog.resize(520, 640);
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QPushButton* notices = nullptr;
        QPushButton* ok = nullptr;
        for (QPushButton* button : dialog.findChildren<QPushButton*>())
            (button->text() == QLatin1String("&Ok") ? ok : notices) = button;
        auto* logo = dialog.findChild<QLabel*>(QStringLiteral("LogoLabel"));
        auto* browser = dialog.findChild<QTextBrowser*>();

        for (bool showNotices : { true, false, true }) {
            QTest::mouseClick(notices, Qt::LeftButton);
            QCoreApplication::processEvents();
            QCOMPARE(dialog.size(), QSize(520, 640));
            QCOMPARE(dialog.maximumSize(), QSize(520, 640));
            QCOMPARE(logo->isVisible(), !showNotices);
            QCOMPARE(browser->isVisible(), showNotices);
        }
        QVERIFY(browser->toPlainText().contains(QLatin1String("This Application Uses:")));

        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!logo->isHidden());
        QVERIFY(browser->isHidden());
    }

    void noticesNameEveryPieceWithItsLicence_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::addColumn<QString>("licence");
        QTest::newRow("Qt") << "Qt 5 Framework"
                            << "";
        QTest::newRow("mp3 decoder") << "libmpg123"
                                     << "LGPL 2.1";
        QTest::newRow("wave decoder") << "libsndfile"
                                      << "LGPL 2.1 or later";
        QTest::newRow("sound output") << "PulseAudio"
                                      << "LGPL 2.1 or later";
        QTest::newRow("music font in the pictures") << "Emmentaler"
                                                    << "Open Font License 1.1";
        QTest::newRow("text font in the pictures") << "DejaVu"
                                                   << "Bitstream Vera";
        QTest::newRow("encoder of the samples") << "LAME"
                                                << "LGPL 2 or later";
    }

    // What the about box shows behind "Legal Notices": every library and font
    // whose work ships in the program, with its licence on the same line.
    void noticesNameEveryPieceWithItsLicence()
    {
        QFETCH(QString, piece);
        QFETCH(QString, licence);
        QTextBrowser browser;
        browser.setHtml(App::theApp()->legalNotices());
        const QStringList lines = browser.toPlainText().split(QLatin1Char('\n'));
        const auto line
            = std::find_if(lines.cbegin(), lines.cend(), [&](const QString& text) { return text.contains(piece); });
        QVERIFY2(line != lines.cend(), qPrintable(browser.toPlainText()));
        QVERIFY2(line->contains(licence), qPrintable(*line));
    }
};

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("GuitarTonarium"));
    TestAboutDialog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AboutDialog.moc"
