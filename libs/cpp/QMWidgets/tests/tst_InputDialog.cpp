#include "InputDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QtTest>

using QMWidgets::InputDialog;

namespace {

// Closes the dialog that is running modally, with its Ok button or Escape.
void answer(bool accept, const std::function<void(InputDialog*)>& inspect)
{
    QTimer::singleShot(0, [accept, inspect]() {
        auto* dialog = qobject_cast<InputDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            const QWidgetList tops = QApplication::topLevelWidgets();
            for (QWidget* top : tops) {
                if (auto* candidate = qobject_cast<InputDialog*>(top))
                    dialog = candidate->isVisible() ? candidate : dialog;
            }
        }
        if (!dialog)
            return;
        inspect(dialog);
        if (accept) {
            for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
                if (button->text() == QLatin1String("Ok"))
                    QTest::mouseClick(button, Qt::LeftButton);
            }
        } else {
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
}

} // namespace

class TestInputDialog : public QObject
{
    Q_OBJECT

private slots:
    void getInteger_data();
    void getInteger();
    void getText_data();
    void getText();
};

void TestInputDialog::getInteger_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("minValue");
    QTest::addColumn<int>("maxValue");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<int>("expected");

    QTest::newRow("500 of 0..1000 is held at 99") << 500 << 0 << 1000 << true << 99;
    QTest::newRow("42 of 0..1000 stays") << 42 << 0 << 1000 << true << 42;
    QTest::newRow("-5 of -10..10 is held at 0") << -5 << -10 << 10 << true << 0;
    QTest::newRow("50 of 0..10 falls to 10") << 50 << 0 << 10 << true << 10;
    QTest::newRow("20 of 30..40 rises to 30") << 20 << 30 << 40 << true << 30;
    QTest::newRow("cancelled still gives the value") << 42 << 0 << 1000 << false << 42;
}

void TestInputDialog::getInteger()
{
    QFETCH(int, value);
    QFETCH(int, minValue);
    QFETCH(int, maxValue);
    QFETCH(bool, accept);
    QFETCH(int, expected);

    int shown = -1;
    bool integerShown = false;
    answer(accept, [&](InputDialog* dialog) {
        shown = dialog->valueWidget()->value();
        integerShown = dialog->type() == InputDialog::Integer && dialog->valueWidget()->isVisible()
            && !dialog->stringWidget()->isVisible();
    });
    bool ok = !accept;
    const int result = InputDialog::getInteger(nullptr, QStringLiteral("Count"), QStringLiteral("How many?"), value,
                                               minValue, maxValue, 1, &ok);

    QCOMPARE(shown, expected);
    QVERIFY(integerShown);
    QCOMPARE(result, expected);
    QCOMPARE(ok, accept);
}

void TestInputDialog::getText_data()
{
    QTest::addColumn<QString>("initial");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("echo");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QString>("expected");

    QTest::newRow("typed text appended") << "Chord" << " list" << int(QLineEdit::Normal) << true << "Chord list";
    QTest::newRow("password echo") << "" << "secret" << int(QLineEdit::Password) << true << "secret";
    QTest::newRow("cancelled still gives the text") << "name" << "" << int(QLineEdit::Normal) << false << "name";
}

void TestInputDialog::getText()
{
    QFETCH(QString, initial);
    QFETCH(QString, typed);
    QFETCH(int, echo);
    QFETCH(bool, accept);
    QFETCH(QString, expected);

    int shownEcho = -1;
    bool textShown = false;
    answer(accept, [&](InputDialog* dialog) {
        QLineEdit* edit = dialog->stringWidget();
        shownEcho = edit->echoMode();
        textShown = dialog->type() == InputDialog::Text && edit->isVisible();
        edit->end(false);
        QTest::keyClicks(edit, typed);
    });
    bool ok = !accept;
    const QString result = InputDialog::getText(nullptr, QStringLiteral("Name"), QStringLiteral("Name?"),
                                                QLineEdit::EchoMode(echo), initial, &ok);

    QCOMPARE(shownEcho, echo);
    QVERIFY(textShown);
    QCOMPARE(result, expected);
    QCOMPARE(ok, accept);
}

QTEST_MAIN(TestInputDialog)
#include "tst_InputDialog.moc"
