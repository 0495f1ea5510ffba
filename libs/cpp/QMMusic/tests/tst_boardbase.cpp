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
    void layersFromStems();
    void hitBoxEdges_data();
    void hitBoxEdges();
    void press_data();
    void press();
    void nextNote();
    void heightFollowsWidth();
};

void TestBoardBase::layersFromStems()
{
    TwoNoteBoard board;
    QCOMPARE(board.minimumWidth(), 800);
    QCOMPARE(board.overlayMap().size(), 2);
    QCOMPARE(board.overlayMap().value(QStringLiteral(":/Guitar_Fd2.png")), QStringLiteral(":/Guitar_Fd2@2x.png"));
    QCOMPARE(board.overlayMap().value(QStringLiteral(":/Guitar_E2.png")), QStringLiteral(":/Guitar_E2@2x.png"));
    QVERIFY(board.currentNote().isEmpty());
    QVERIFY(!board.isInTraining());
}

void TestBoardBase::hitBoxEdges_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("inside");
    QTest::newRow("centre") << QPoint(100, 50) << true;
    QTest::newRow("top left corner") << QPoint(84, 45) << true;
    QTest::newRow("bottom right corner") << QPoint(115, 54) << true;
    QTest::newRow("left of the box") << QPoint(83, 50) << false;
    QTest::newRow("right of the box") << QPoint(116, 50) << false;
    QTest::newRow("above the box") << QPoint(100, 44) << false;
    QTest::newRow("below the box") << QPoint(100, 55) << false;
}

void TestBoardBase::hitBoxEdges()
{
    QFETCH(QPoint, point);
    QFETCH(bool, inside);
    TwoNoteBoard board;
    QCOMPARE(board.isIn(100, 50, point), inside);
}

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
    board.resize(800, 600);
    board.show();
    QCOMPARE(board.height(), 194);
    board.slotSetInTraining(runOn);
    QSignalSpy spy(&board, &BoardBase::noteChanged);
    QTest::mouseClick(&board, Qt::LeftButton, Qt::NoModifier, design);
    QCOMPARE(spy.count(), name.isEmpty() ? 0 : 1);
    if (!name.isEmpty()) {
        QCOMPARE(spy.at(0).at(0).toString(), name);
        QCOMPARE(spy.at(0).at(1).toInt(), accidental);
    }
    QCOMPARE(board.currentNote(), stem);
}

void TestBoardBase::nextNote()
{
    TwoNoteBoard board;
    QSignalSpy spy(&board, &BoardBase::noteChanged);
    board.slotNextNote();
    QCOMPARE(spy.count(), 1);
    const QString name = spy.at(0).at(0).toString();
    const int accidental = spy.at(0).at(1).toInt();
    QVERIFY((name == QLatin1String("E2") && accidental == 0) || (name == QLatin1String("F2") && accidental == 1));
    QCOMPARE(board.currentNote(), accidental ? QStringLiteral("Fd2") : QStringLiteral("E2"));
}

void TestBoardBase::heightFollowsWidth()
{
    TwoNoteBoard board;
    board.resize(1600, 600);
    board.show();
    QCOMPARE(board.height(), 388);
}

QTEST_MAIN(TestBoardBase)
#include "tst_boardbase.moc"
