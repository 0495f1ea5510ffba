#include "BoardBase.h"

#include <QSignalSpy>
#include <QtTest>

using QMMusic::BoardBase;

namespace {

// A board of two notes on the guitar's pictures: E2 at (104, 132) and
// F2# at (182, 136) in design units.
class TwoNoteBoard : public BoardBase
{
public:
    TwoNoteBoard()
        : BoardBase(QStringLiteral("Guitar"))
    {
        initNotes();
        createLayers();
    }

    void initNotes() override
    {
        m_fileStems = { QStringLiteral("E2"), QStringLiteral("Fd2") };
        m_trainingNotes = { QStringLiteral("E2"), QStringLiteral("F2#") };
    }

    QString positionToNote(int x, int y) const override
    {
        const QPoint design(int(x * 800.0f / width()), int(y * 194.0f / height()));
        if (isIn(104, 132, design))
            return QStringLiteral("E2");
        if (isIn(182, 136, design))
            return QStringLiteral("F2#");
        return QString();
    }
};

} // namespace

class TestBoardBase : public QObject
{
    Q_OBJECT

private slots:
    void press_data();
    void press();
};

void TestBoardBase::press_data()
{
    QTest::addColumn<QPoint>("design");
    QTest::addColumn<bool>("runOn");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("stem");

    QTest::newRow("natural") << QPoint(104, 132) << false << "E2" << 0 << "E2";
    QTest::newRow("sharp") << QPoint(182, 136) << false << "F2" << 1 << "Fd2";
    QTest::newRow("gap") << QPoint(140, 132) << false << "" << 0 << "";
    QTest::newRow("during a run") << QPoint(104, 132) << true << "" << 0 << "";
}

void TestBoardBase::press()
{
    QFETCH(QPoint, design);
    QFETCH(bool, runOn);
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, stem);

    TwoNoteBoard board;
    board.resize(1600, 600);
    board.show();
    QCOMPARE(board.height(), 388);
    board.slotSetInTraining(runOn);
    QSignalSpy spy(&board, &BoardBase::noteChanged);
    QTest::mouseClick(&board, Qt::LeftButton, Qt::NoModifier, design * 2);
    QCOMPARE(spy.count(), name.isEmpty() ? 0 : 1);
    if (!name.isEmpty()) {
        QCOMPARE(spy.at(0).at(0).toString(), name);
        QCOMPARE(spy.at(0).at(1).toInt(), accidental);
    }
    QCOMPARE(board.currentNote(), stem);
}

QTEST_MAIN(TestBoardBase)
#include "tst_boardbase.moc"
