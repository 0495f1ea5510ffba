#include "Handle.h"

#include <QtTest>

#include <functional>

using MTools::Error;
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

Q_DECLARE_METATYPE(std::function<void()>)

class tst_Handle : public QObject
{
    Q_OBJECT

private slots:
    void init() { Tracked::alive = 0; }

    void sharing_data();
    void sharing();
    void nullThrows_data();
    void nullThrows();
    void assignmentReleasesOldObject();
};

void tst_Handle::sharing_data()
{
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("released");

    QTest::newRow("single owner, none released") << 0 << 0;
    QTest::newRow("three copies, two released") << 3 << 2;
    QTest::newRow("three copies, all copies released") << 3 << 3;
    QTest::newRow("one copy, original and copy released") << 1 << 2;
}

// The count follows copies and releases, and the object dies with the last owner.
void tst_Handle::sharing()
{
    QFETCH(int, copies);
    QFETCH(int, released);

    QList<Handle<Tracked>> owners;
    owners.append(Handle<Tracked>(new Tracked(7)));
    for (int i = 0; i < copies; ++i)
        owners.append(owners.first());
    QCOMPARE(owners.first().count(), copies + 1);

    for (int i = 0; i < released; ++i)
        owners.last().reset(), owners.removeLast();

    const int left = copies + 1 - released;
    QCOMPARE(Tracked::alive, left > 0 ? 1 : 0);
    if (left > 0) {
        QCOMPARE(owners.first().count(), left);
        QCOMPARE(owners.first()->value, 7);
    }
}

void tst_Handle::nullThrows_data()
{
    QTest::addColumn<std::function<void()>>("access");

    QTest::newRow("arrow on default handle") << std::function<void()>([] {
        Handle<Tracked> h;
        (void)h->value;
    });
    QTest::newRow("star on default handle") << std::function<void()>([] {
        Handle<Tracked> h;
        (void)(*h).value;
    });
    QTest::newRow("arrow after reset") << std::function<void()>([] {
        Handle<Tracked> h(new Tracked(1));
        h.reset();
        (void)h->value;
    });
    QTest::newRow("handle made from null pointer") << std::function<void()>([] {
        Handle<Tracked> h(nullptr);
        (void)h->value;
    });
}

void tst_Handle::nullThrows()
{
    QFETCH(std::function<void()>, access);
    QString message;
    try {
        access();
    } catch (const Error& error) {
        message = error.message();
    }
    QCOMPARE(message, QStringLiteral("Null handle"));
}

void tst_Handle::assignmentReleasesOldObject()
{
    Handle<Tracked> a(new Tracked(1));
    Handle<Tracked> b(new Tracked(2));
    QCOMPARE(Tracked::alive, 2);
    a = b;
    QCOMPARE(Tracked::alive, 1);
    QCOMPARE(a->value, 2);
    QCOMPARE(b.count(), 2);
    a = a;
    QCOMPARE(a.count(), 2);
    b.reset();
    QCOMPARE(a.count(), 1);
    QCOMPARE(Tracked::alive, 1);
}

QTEST_GUILESS_MAIN(tst_Handle)
#include "tst_Handle.moc"
