#include "Handle.h"

#include <QtTest>

using MTools::Handle;

namespace {

// Counts how many of its kind are alive, so that the tests see deletes.
struct Tracked
{
    explicit Tracked(int value)
        : value(value)
    {
        ++alive;
    }
    ~Tracked() { --alive; }
    int value;
    static int alive;
};

int Tracked::alive = 0;

} // namespace

class tst_Handle : public QObject
{
    Q_OBJECT

private slots:
    void init() { Tracked::alive = 0; }

    void sharing_data();
    void sharing();
};

void tst_Handle::sharing_data()
{
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("released");

    QTest::newRow("single owner, none released") << 0 << 0;
    QTest::newRow("three copies, two released") << 3 << 2;
    QTest::newRow("one copy, original and copy released") << 1 << 2;
}

// The count follows copies, assignments and releases; the object dies with the last owner.
void tst_Handle::sharing()
{
    QFETCH(int, copies);
    QFETCH(int, released);

    QList<Handle<Tracked>> owners;
    owners.append(Handle<Tracked>(new Tracked(7)));
    for (int i = 0; i < copies; ++i) {
        Handle<Tracked> other(new Tracked(8));
        other = owners.first(); // releases the 8
        owners.append(other);
    }
    owners.first() = owners.first();
    QCOMPARE(Tracked::alive, 1);
    for (int i = 0; i < released; ++i)
        owners.last().reset(), owners.removeLast();

    const int left = copies + 1 - released;
    QCOMPARE(Tracked::alive, left > 0 ? 1 : 0);
    if (left > 0) {
        QCOMPARE(owners.first().count(), left);
        QCOMPARE(owners.first()->value, 7);
    }
}

QTEST_GUILESS_MAIN(tst_Handle)
#include "tst_Handle.moc"
