#include "MMessageBox.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using QMWidgets::MMessageBox;

namespace {

using StaticBox = int (*)(QWidget*, const QString&, const QString&, int, int);

// The visible buttons of a box from left to right.
QList<QPushButton*> buttonsOnScreen(const QWidget* box)
{
    QList<QPushButton*> buttons;
    for (QPushButton* button : box->findChildren<QPushButton*>()) {
        if (button->isVisible())
            buttons.append(button);
    }
    std::sort(
        buttons.begin(), buttons.end(), [](const QPushButton* a, const QPushButton* b) { return a->x() < b->x(); });
    return buttons;
}

QStringList texts(const QList<QPushButton*>& buttons)
{
    QStringList result;
    for (const QPushButton* button : buttons)
        result.append(button->text());
    return result;
}

} // namespace

Q_DECLARE_METATYPE(StaticBox)

class TestMMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void buttonsStandInFixedOrderAndGiveTheirBit_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QList<int>>("results");
        QTest::newRow("yes and no: no on the left")
            << int(QMessageBox::Yes | QMessageBox::No) << QStringList { "No", "Yes" }
            << QList<int> { QMessageBox::No, QMessageBox::Yes };
        QTest::newRow("all nine")
            << int(QMessageBox::NoToAll | QMessageBox::YesToAll | QMessageBox::Ignore | QMessageBox::Retry
                   | QMessageBox::Abort | QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel | QMessageBox::Ok)
            << QStringList { "Ok", "Cancel", "No", "Yes", "Abort", "Retry", "Ignore", "YesAll", "NoAll" }
            << QList<int> { QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::No, QMessageBox::Yes, QMessageBox::Abort,
                   QMessageBox::Retry, QMessageBox::Ignore, QMessageBox::YesToAll, QMessageBox::NoToAll };
        QTest::newRow("no bit: no buttons") << 0 << QStringList() << QList<int>();
        QTest::newRow("unknown bits are ignored")
            << int(QMessageBox::Save | QMessageBox::Ok) << QStringList { "Ok" } << QList<int> { QMessageBox::Ok };
    }

    void buttonsStandInFixedOrderAndGiveTheirBit()
    {
        QFETCH(int, buttons);
        QFETCH(QStringList, expected);
        QFETCH(QList<int>, results);
        MMessageBox box(MMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"), buttons);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QList<QPushButton*> onScreen = buttonsOnScreen(&box);
        QCOMPARE(texts(onScreen), expected);
        for (int n = 0; n < onScreen.size(); ++n) {
            box.show();
            QTest::mouseClick(onScreen.at(n), Qt::LeftButton);
            QVERIFY(!box.isVisible());
            QCOMPARE(box.result(), results.at(n));
        }
    }

    void staticsShowFirstButtonAlone_data()
    {
        QTest::addColumn<StaticBox>("run");
        QTest::addColumn<int>("button0");
        QTest::addColumn<int>("button1");
        QTest::addColumn<QString>("text");
        QTest::newRow("critical: ok, cancel ignored")
            << StaticBox(&MMessageBox::critical) << int(QMessageBox::Ok) << int(QMessageBox::Cancel) << "Ok";
        QTest::newRow("information: ok alone")
            << StaticBox(&MMessageBox::information) << int(QMessageBox::Ok) << 0 << "Ok";
        QTest::newRow("question: yes, no ignored")
            << StaticBox(&MMessageBox::question) << int(QMessageBox::Yes) << int(QMessageBox::No) << "Yes";
        QTest::newRow("warning: retry, abort ignored")
            << StaticBox(&MMessageBox::warning) << int(QMessageBox::Retry) << int(QMessageBox::Abort) << "Retry";
    }

    void staticsShowFirstButtonAlone()
    {
        QFETCH(StaticBox, run);
        QFETCH(int, button0);
        QFETCH(int, button1);
        QFETCH(QString, text);
        QWidget parent;
        QStringList seen;
        bool hadIcon = false;
        QTimer::singleShot(0, &parent, [&]() {
            auto* box = parent.findChild<MMessageBox*>();
            const QList<QPushButton*> onScreen = buttonsOnScreen(box);
            seen = texts(onScreen);
            for (const QLabel* label : box->findChildren<QLabel*>())
                hadIcon = hadIcon || !label->pixmap(Qt::ReturnByValue).isNull();
            if (onScreen.isEmpty())
                box->reject();
            else
                QTest::mouseClick(onScreen.first(), Qt::LeftButton);
        });
        QCOMPARE(run(&parent, QStringLiteral("T"), QStringLiteral("X"), button0, button1), button0);
        QCOMPARE(seen, QStringList { text });
        QVERIFY(hadIcon);
        // The box is not deleted: it lives on as a child of the parent.
        QCOMPARE(parent.findChildren<MMessageBox*>().size(), 1);
    }
};

QTEST_MAIN(TestMMessageBox)
#include "tst_MMessageBox.moc"
