#include "PianoBoard.h"

#include <QSignalSpy>
#include <QtTest>

using QMMusic::PianoBoard;

namespace {

QPoint widgetPoint(const QWidget& board, double px, double py)
{
    return QPoint(int(px * board.width() / 800.0), int(py * board.height() / 194.0));
}

} // namespace

class tst_PianoBoard : public QObject
{
    Q_OBJECT

private slots:
    void press_data();
    void press();
    void setNoteGivesTheKeyQuietly_data();
    void setNoteGivesTheKeyQuietly();
    void paintLightsTheKey();
};

void tst_PianoBoard::press_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QPointF>("design");
    QTest::addColumn<QString>("name"); // empty: nothing happens
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("key");

    QTest::newRow("A0, lower part") << 800 << QPointF(28.5, 125) << "A0" << 0 << "1";
    QTest::newRow("A0#") << 800 << QPointF(37.5, 90) << "A0" << 1 << "2";
    QTest::newRow("middle C") << 800 << QPointF(365.5, 125) << "C4" << 0 << "40";
    QTest::newRow("C8") << 800 << QPointF(783.5, 125) << "C8" << 0 << "88";
    QTest::newRow("double size, A4") << 1600 << QPointF(440.5, 125) << "A4" << 0 << "49";
    QTest::newRow("front of the case") << 800 << QPointF(400.5, 140) << "" << 0 << "";
    QTest::newRow("above the keys") << 800 << QPointF(400.5, 60) << "" << 0 << "";
}

// A press names the key's note, shows the key and asks for its sample.
void tst_PianoBoard::press()
{
    QFETCH(int, width);
    QFETCH(QPointF, design);
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, key);

    PianoBoard board;
    board.resize(width, 600);
    board.show();
    QCOMPARE(board.height(), width * 194 / 800);
    QSignalSpy spy(&board, &PianoBoard::noteChanged);
    QTest::mouseClick(&board, Qt::LeftButton, Qt::NoModifier, widgetPoint(board, design.x(), design.y()));
    QCOMPARE(spy.count(), name.isEmpty() ? 0 : 1);
    if (!name.isEmpty())
        QCOMPARE(spy.at(0), (QList<QVariant> { name, accidental }));
    QCOMPARE(board.currentNote(), key);
}

void tst_PianoBoard::setNoteGivesTheKeyQuietly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("key");
    QTest::newRow("A0") << "A0" << 0 << "1";
    QTest::newRow("C8") << "C8" << 0 << "88";
    QTest::newRow("C4") << "C4" << 0 << "40";
    QTest::newRow("B3 sharp") << "B3" << 1 << "40";
    QTest::newRow("A0 flat stays on the first key") << "A0" << -1 << "1";
}

void tst_PianoBoard::setNoteGivesTheKeyQuietly()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, key);
    PianoBoard board;
    QSignalSpy spy(&board, &PianoBoard::noteChanged);
    board.slotSetNote(name, accidental);
    QCOMPARE(board.currentNote(), key);
    QCOMPARE(spy.count(), 0);
}

// The lit key takes the marks' blue; the keys beside it stay as they were.
void tst_PianoBoard::paintLightsTheKey()
{
    PianoBoard board;
    board.resize(800, 600);
    board.show();
    const QImage bare = board.grab().toImage();
    board.slotSetNote(QStringLiteral("C4"), 0);
    const QImage lit = board.grab().toImage();
    const QPoint c4 = widgetPoint(board, 365.5, 125);
    const QPoint d4 = widgetPoint(board, 380.5, 125);
    QVERIFY(qBlue(lit.pixel(c4)) > qRed(lit.pixel(c4)) + 20);
    QCOMPARE(lit.pixel(d4), bare.pixel(d4));
    QVERIFY(lit.pixel(c4) != bare.pixel(c4));
}

QTEST_MAIN(tst_PianoBoard)
#include "tst_pianoboard.moc"
