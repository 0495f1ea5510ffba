#include "InputDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QtTest>

#include <functional>

using QMWidgets::InputDialog;

namespace {

// Once the dialog runs modally: inspects it, then closes it with its Ok button or Escape.
void answer(bool accept, const std::function<void(InputDialog*)>& inspect)
{
    QTimer::singleShot(0, [accept, inspect]() {
        auto* dialog = qobject_cast<InputDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        inspect(dialog);
        for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
            if (accept && button->text() == QLatin1String("Ok"))
                QTest::mouseClick(button, Qt::LeftButton);
        }
        if (!accept)
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
}

} // namespace

class TestInputDialog : public QObject
{
    Q_OBJECT

private slots:
    void getInteger_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("minValue");
        QTest::addColumn<int>("maxValue");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<int>("expected");
        // The value is clamped by the spin box's default 0..99 before the range is set.
        QTest::newRow("500 of 0..1000 is held at 99") << 500 << 0 << 1000 << true << 99;
        QTest::newRow("-5 of -10..10 is held at 0") << -5 << -10 << 10 << true << 0;
        QTest::newRow("50 of 0..10 falls to 10") << 50 << 0 << 10 << true << 10;
        QTest::newRow("20 of 30..40 rises to 30") << 20 << 30 << 40 << true << 30;
        QTest::newRow("cancelled still gives the value") << 42 << 0 << 1000 << false << 42;
    }

    void getInteger()
    {
        QFETCH(int, value);
        QFETCH(int, minValue);
        QFETCH(int, maxValue);
        QFETCH(bool, accept);
        QFETCH(int, expected);
        int shown = -1;
        answer(accept, [&](InputDialog* dialog) {
            if (dialog->valueWidget()->isVisible() && !dialog->stringWidget()->isVisible())
                shown = dialog->valueWidget()->value();
        });
        bool ok = !accept;
        QCOMPARE(InputDialog::getInteger(
                     nullptr, QStringLiteral("Count"), QStringLiteral("How many?"), value, minValue, maxValue, 1, &ok),
            expected);
        QCOMPARE(shown, expected);
        QCOMPARE(ok, accept);
    }

    void getText_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("echo");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("expected");
        QTest::newRow("typed text appended") << " list" << int(QLineEdit::Normal) << true << "Chord list";
        QTest::newRow("password echo") << "" << int(QLineEdit::Password) << true << "Chord";
        QTest::newRow("cancelled still gives the text") << "" << int(QLineEdit::Normal) << false << "Chord";
    }

    void getText()
    {
        QFETCH(QString, typed);
        QFETCH(int, echo);
        QFETCH(bool, accept);
        QFETCH(QString, expected);
        int shownEcho = -1;
        answer(accept, [&](InputDialog* dialog) {
            QLineEdit* edit = dialog->stringWidget();
            if (edit->isVisible())
                shownEcho = edit->echoMode();
            edit->end(false);
            QTest::keyClicks(edit, typed);
        });
        bool ok = !accept;
        QCOMPARE(InputDialog::getText(nullptr, QStringLiteral("Name"), QStringLiteral("Name?"),
                     QLineEdit::EchoMode(echo), QStringLiteral("Chord"), &ok),
            expected);
        QCOMPARE(shownEcho, echo);
        QCOMPARE(ok, accept);
    }
};

QTEST_MAIN(TestInputDialog)
#include "tst_InputDialog.moc"
