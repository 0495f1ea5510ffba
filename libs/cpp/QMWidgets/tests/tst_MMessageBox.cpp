#include "MMessageBox.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using QMWidgets::MMessageBox;

namespace {

// The visible buttons of a box from left to right.
QList<QPushButton*> buttonsOnScreen(const QWidget* box)
{
    QList<QPushButton*> buttons;
    for (QPushButton* button : box->findChildren<QPushButton*>()) {
        if (button->isVisible())
            buttons.append(button);
    }
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton* a, const QPushButton* b) { return a->x() < b->x(); });
    return buttons;
}

QStringList texts(const QList<QPushButton*>& buttons)
{
    QStringList result;
    for (const QPushButton* button : buttons)
        result.append(button->text());
    return result;
}

enum StaticKind { CriticalBox, InformationBox, QuestionBox, WarningBox };

} // namespace

class TestMMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void buttonsStandInFixedOrder_data();
    void buttonsStandInFixedOrder();
    void eachButtonGivesItsBit_data();
    void eachButtonGivesItsBit();
    void staticsShowFirstButtonAlone_data();
    void staticsShowFirstButtonAlone();
};

void TestMMessageBox::buttonsStandInFixedOrder_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("yes and no: no on the left") << int(QMessageBox::Yes | QMessageBox::No)
                                                << QStringList { "No", "Yes" };
    QTest::newRow("cancel and ok") << int(QMessageBox::Cancel | QMessageBox::Ok) << QStringList { "Ok", "Cancel" };
    QTest::newRow("ignore, retry, abort") << int(QMessageBox::Ignore | QMessageBox::Retry | QMessageBox::Abort)
                                          << QStringList { "Abort", "Retry", "Ignore" };
    QTest::newRow("no to all and yes to all") << int(QMessageBox::NoToAll | QMessageBox::YesToAll)
                                              << QStringList { "YesAll", "NoAll" };
    QTest::newRow("all nine") << int(QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::No | QMessageBox::Yes
                                     | QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore
                                     | QMessageBox::YesToAll | QMessageBox::NoToAll)
                              << QStringList { "Ok", "Cancel", "No", "Yes", "Abort", "Retry", "Ignore", "YesAll",
                                               "NoAll" };
    QTest::newRow("no bit: no buttons") << 0 << QStringList();
    QTest::newRow("unknown bits are ignored") << int(QMessageBox::Save | QMessageBox::Ok) << QStringList { "Ok" };
}

void TestMMessageBox::buttonsStandInFixedOrder()
{
    QFETCH(int, buttons);
    QFETCH(QStringList, expected);

    MMessageBox box(MMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"), buttons);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));

    const QList<QPushButton*> onScreen = buttonsOnScreen(&box);
    QCOMPARE(texts(onScreen), expected);
    for (const QPushButton* button : onScreen) {
        QCOMPARE(button->objectName(), QStringLiteral("PushButton"));
        QVERIFY(button->isFlat());
        QVERIFY(button->height() >= 32);
    }
    QVERIFY(box.width() >= 300);
    QVERIFY(box.height() >= 200);
}

void TestMMessageBox::eachButtonGivesItsBit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");

    QTest::newRow("Ok") << "Ok" << int(QMessageBox::Ok);
    QTest::newRow("Cancel") << "Cancel" << int(QMessageBox::Cancel);
    QTest::newRow("No") << "No" << int(QMessageBox::No);
    QTest::newRow("Yes") << "Yes" << int(QMessageBox::Yes);
    QTest::newRow("Abort") << "Abort" << int(QMessageBox::Abort);
    QTest::newRow("Retry") << "Retry" << int(QMessageBox::Retry);
    QTest::newRow("Ignore") << "Ignore" << int(QMessageBox::Ignore);
    QTest::newRow("YesAll") << "YesAll" << int(QMessageBox::YesToAll);
    QTest::newRow("NoAll") << "NoAll" << int(QMessageBox::NoToAll);
}

void TestMMessageBox::eachButtonGivesItsBit()
{
    QFETCH(QString, text);
    QFETCH(int, result);

    const int all = QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::No | QMessageBox::Yes | QMessageBox::Abort
        | QMessageBox::Retry | QMessageBox::Ignore | QMessageBox::YesToAll | QMessageBox::NoToAll;
    MMessageBox box(MMessageBox::Warning, QStringLiteral("Title"), QStringLiteral("Text"), all);

    QPushButton* target = nullptr;
    QTimer::singleShot(0, &box, [&]() {
        for (QPushButton* button : buttonsOnScreen(&box)) {
            if (button->text() == text)
                target = button;
        }
        if (target)
            QTest::mouseClick(target, Qt::LeftButton);
        else
            box.reject();
    });
    const int returned = box.exec();

    QVERIFY2(target, qPrintable(text));
    QCOMPARE(returned, result);
}

void TestMMessageBox::staticsShowFirstButtonAlone_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("button0");
    QTest::addColumn<int>("button1");
    QTest::addColumn<QString>("text");

    QTest::newRow("critical: ok, cancel ignored") << int(CriticalBox) << int(QMessageBox::Ok)
                                                  << int(QMessageBox::Cancel) << "Ok";
    QTest::newRow("information: ok alone") << int(InformationBox) << int(QMessageBox::Ok) << 0 << "Ok";
    QTest::newRow("question: yes, no ignored") << int(QuestionBox) << int(QMessageBox::Yes) << int(QMessageBox::No)
                                               << "Yes";
    QTest::newRow("warning: retry, abort ignored") << int(WarningBox) << int(QMessageBox::Retry)
                                                   << int(QMessageBox::Abort) << "Retry";
}

void TestMMessageBox::staticsShowFirstButtonAlone()
{
    QFETCH(int, kind);
    QFETCH(int, button0);
    QFETCH(int, button1);
    QFETCH(QString, text);

    QWidget parent;
    QStringList seen;
    bool hadIcon = false;
    QTimer::singleShot(0, &parent, [&]() {
        auto* box = parent.findChild<MMessageBox*>();
        if (!box)
            return;
        const QList<QPushButton*> onScreen = buttonsOnScreen(box);
        seen = texts(onScreen);
        for (const QLabel* label : box->findChildren<QLabel*>())
            hadIcon = hadIcon || !label->pixmap(Qt::ReturnByValue).isNull();
        if (!onScreen.isEmpty())
            QTest::mouseClick(onScreen.first(), Qt::LeftButton);
        else
            box->reject();
    });

    int result = -1;
    switch (kind) {
    case CriticalBox:
        result = MMessageBox::critical(&parent, QStringLiteral("T"), QStringLiteral("X"), button0, button1);
        break;
    case InformationBox:
        result = MMessageBox::information(&parent, QStringLiteral("T"), QStringLiteral("X"), button0, button1);
        break;
    case QuestionBox:
        result = MMessageBox::question(&parent, QStringLiteral("T"), QStringLiteral("X"), button0, button1);
        break;
    case WarningBox:
        result = MMessageBox::warning(&parent, QStringLiteral("T"), QStringLiteral("X"), button0, button1);
        break;
    }

    QCOMPARE(seen, QStringList { text });
    QCOMPARE(result, button0);
    QVERIFY(hadIcon);
    // The box is not deleted: it lives on as a child of the parent.
    QCOMPARE(parent.findChildren<MMessageBox*>().size(), 1);
}

QTEST_MAIN(TestMMessageBox)
#include "tst_MMessageBox.moc"
