#include "GuitarBoard.h"

#include <QPixmap>
#include <QtTest>

using QMMusic::GuitarBoard;

// One repaint of the guitar board at 1280 px width.
class BenchGuitarBoard : public QObject
{
    Q_OBJECT

private slots:
    void repaint_data();
    void repaint();
};

void BenchGuitarBoard::repaint_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<bool>("newNoteEachPaint");
    QTest::addColumn<bool>("runOn");

    QTest::newRow("bare neck") << "" << false << false;
    QTest::newRow("same note again") << "E4" << false << false;
    QTest::newRow("new note each paint") << "E4" << true << false;
    QTest::newRow("training run, one place") << "E4" << false << true;
}

void BenchGuitarBoard::repaint()
{
    QFETCH(QString, note);
    QFETCH(bool, newNoteEachPaint);
    QFETCH(bool, runOn);

    GuitarBoard board;
    board.resize(1280, 600);
    board.show();
    QVERIFY(QTest::qWaitForWindowExposed(&board));
    QCOMPARE(board.height(), 310);
    if (!note.isEmpty())
        board.slotSetNote(note, 0);
    board.slotSetInTraining(runOn);

    QPixmap target(board.size());
    board.render(&target);
    bool flip = false;
    QBENCHMARK
    {
        if (newNoteEachPaint) {
            flip = !flip;
            board.slotSetNote(flip ? QStringLiteral("F4") : QStringLiteral("E4"), 0);
        }
        board.render(&target);
    }
}

QTEST_MAIN(BenchGuitarBoard)
#include "bench_GuitarBoard.moc"
