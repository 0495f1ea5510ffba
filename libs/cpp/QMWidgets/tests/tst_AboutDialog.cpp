#include "AboutDialog.h"
#include "App.h"

#include <QDate>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

using namespace QMWidgets;

class TestAboutDialog : public QObject
{
    Q_OBJECT

private:
    static QPushButton* noticesButton(AboutDialog& dialog)
    {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() != QLatin1String("&Ok"))
                return button;
        }
        return nullptr;
    }

private slots:
    void infoText_data()
    {
        QTest::addColumn<QDate>("buildDate");
        QTest::addColumn<bool>("kidsMode");
        QTest::addColumn<QString>("mustHold");
        QTest::addColumn<QString>("mustNotHold");
        QTest::newRow("day first with dots") << QDate(2014, 8, 1) << false << "GuitarTonarium v1.2 Build: 01.08.2014"
                                             << "8/1/2014";
        QTest::newRow("year of the rights") << QDate(2016, 12, 24) << false << "2016 CORVANE" << "";
        QTest::newRow("home page linked") << QDate(2014, 8, 1) << false
                                          << "HREF=\"https://www.corvane.com\">corvane.com</A><BR>" << "";
        QTest::newRow("kids mode: domain without link") << QDate(2014, 8, 1) << true << "corvane.com<BR>" << "<A ";
        QTest::newRow("maker's logo") << QDate(2014, 8, 1) << true << "<IMG SRC=\":/pix/corvanelogo.png\">" << "";
    }

    void infoText()
    {
        QFETCH(QDate, buildDate);
        QFETCH(bool, kidsMode);
        QFETCH(QString, mustHold);
        QFETCH(QString, mustNotHold);
        const QString text = AboutDialog::infoText(QStringLiteral("GuitarTonarium"), QStringLiteral("1.2"), buildDate,
                                                   QStringLiteral("corvane.com"),
                                                   QStringLiteral("https://www.corvane.com"), kidsMode);
        QVERIFY2(text.contains(mustHold), qPrintable(text));
        if (!mustNotHold.isEmpty())
            QVERIFY2(!text.contains(mustNotHold, Qt::CaseInsensitive), qPrintable(text));
    }

    void keepsItsSizeWhenToggling_data()
    {
        QTest::addColumn<QSize>("startSize");
        QTest::newRow("natural size") << QSize();
        QTest::newRow("enlarged by the user") << QSize(520, 640);
    }

    void keepsItsSizeWhenToggling()
    {
        QFETCH(QSize, startSize);
        AboutDialog dialog;
        dialog.show();
        if (startSize.isValid())
            dialog.resize(startSize);
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QSize before = dialog.size();
        QPushButton* notices = noticesButton(dialog);
        QVERIFY(notices);
        auto* logo = dialog.findChild<QLabel*>(QStringLiteral("LogoLabel"));
        auto* browser = dialog.findChild<QTextBrowser*>();

        QTest::mouseClick(notices, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(dialog.size(), before);
        QCOMPARE(dialog.minimumSize(), before);
        QCOMPARE(dialog.maximumSize(), before);
        QVERIFY(!logo->isVisible());
        QVERIFY(browser->isVisible());
        QCOMPARE(notices->text(), QStringLiteral("&Hide"));
        QVERIFY(browser->toPlainText().contains(QLatin1String("This Application Uses:")));

        QTest::mouseClick(notices, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(dialog.size(), before);
        QVERIFY(logo->isVisible());
        QVERIFY(!browser->isVisible());
        QCOMPARE(notices->text(), QStringLiteral("&Legal Notices"));
    }

    void okClosesAndReturnsToTheInfo()
    {
        AboutDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.setMainInfoVisible(false);
        QPushButton* ok = nullptr;
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("&Ok"))
                ok = button;
        }
        QVERIFY(ok);
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.findChild<QLabel*>(QStringLiteral("LogoLabel"))->isHidden());
        QVERIFY(dialog.findChild<QTextBrowser*>()->isHidden());
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
