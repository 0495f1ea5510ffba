#include "NotesWidget.h"
#include "StaffGeometry.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QtTest>

using QMMusic::NotesWidget;
using QMMusic::StaffGeometry;

namespace {

// Keeps the paths of the presses instead of sounding them.
class RecordingNotesWidget : public NotesWidget
{
public:
    QStringList played;

protected:
    void playSample(const QString& path) override { played.append(path); }
};

struct StaffSettings
{
    int startLine;
    int lines;
    int translateLines;
    float paperHeightFactor;
    bool noBass;
    bool noViolin;
};

void configure(NotesWidget& widget, const QString& instrument)
{
    // Each instrument's staff as its page sets it up; the piano keeps the defaults.
    static const QMap<QString, StaffSettings> settings {
        { "guitar", { 8, 22, 5, 1.3f, false, false } },
        { "ukulele", { 8, 16, 6, 1.6f, true, false } },
        { "violin", { 8, 17, 6, 1.55f, true, false } },
        { "bass", { 15, 25, 12, 1.94f, false, true } },
        { "balalaika", { 7, 15, 6, 1.53f, true, false } },
        { "banjo", { 8, 19, 5, 1.42f, true, false } },
        { "mandolin", { 6, 17, 5, 1.42f, true, false } },
    };
    const StaffSettings s = settings.value(instrument.toLower(), { 0, 27, 0, 1.0f, false, false });
    widget.setStartLine(s.startLine);
    widget.setLines(s.lines);
    widget.setTranslateLines(s.translateLines);
    widget.setPaperHeightFactor(s.paperHeightFactor);
    widget.setNoBass(s.noBass);
    widget.setNoViolin(s.noViolin);
    widget.setInstrumentName(instrument);
}

// The guitar's staff at the height its tables were tuned for, on screen.
bool showGuitarStaff(NotesWidget& widget, const QString& instrument = QStringLiteral("guitar"))
{
    configure(widget, instrument);
    widget.resize(400, 324);
    widget.show();
    return QTest::qWaitForWindowExposed(&widget);
}

QString noteLabel(const NotesWidget& widget)
{
    return widget.findChild<QLabel*>(QStringLiteral("NoteLabel"))->text();
}

QString labelText(const QString& sign, const QString& name, const QString& solfege)
{
    return QStringLiteral("<CENTER><FONT SIZE=\"10\">") + sign + name + QStringLiteral("</FONT><br><FONT SIZE=\"5\">(")
        + sign + solfege + QStringLiteral(")</FONT></CENTER>");
}

const QString kFlatLabelSign = QStringLiteral("<b>") + QChar(0x266D) + QStringLiteral("</b>");

void hover(QWidget& widget, int y)
{
    QMouseEvent move(QEvent::MouseMove, QPointF(widget.width() / 3, y), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
    widget.repaint();
}

// Runs the widget's own paint (which names the note) with everything clipped
// away but one pixel, so that a thousand heights stay quick.
void paintOnly(QWidget& widget)
{
    static QImage target(1, 1, QImage::Format_ARGB32_Premultiplied);
    widget.render(&target, QPoint(), QRegion(0, 0, 1, 1), QWidget::RenderFlags());
}

QPushButton* button(NotesWidget& widget, const char* objectName)
{
    return widget.findChild<QPushButton*>(QLatin1String(objectName));
}

const char* const kInstruments[] = { "guitar", "piano", "ukulele", "bass", "violin", "mandolin", "banjo", "balalaika" };

} // namespace

class TestNotesWidget : public QObject
{
    Q_OBJECT

private slots:
    void tableRowsSnapBackInAPaint_data();
    void tableRowsSnapBackInAPaint();
    void referenceHeightGivesTheTunedRow_data();
    void referenceHeightGivesTheTunedRow();
    void hoverThenPress_data();
    void hoverThenPress();
    void showNote_data();
    void showNote();
    void resizeKeepsTheChosenNote_data();
    void resizeKeepsTheChosenNote();
    void signPressedAfterANoteWaitsForTheNext_data();
    void signPressedAfterANoteWaitsForTheNext();
    void signButtonsAreExclusive();
};

void TestNotesWidget::tableRowsSnapBackInAPaint_data()
{
    QTest::addColumn<QString>("instrument");
    for (const char* instrument : kInstruments)
        QTest::newRow(instrument) << QString::fromLatin1(instrument);
}

void TestNotesWidget::tableRowsSnapBackInAPaint()
{
    QFETCH(QString, instrument);
    // Shown without a window on screen, so a resize costs no window resize.
    NotesWidget widget;
    configure(widget, instrument);
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.show();
    QSignalSpy spy(&widget, &NotesWidget::noteChanged);

    const auto rows = StaffGeometry::referenceRows(instrument);
    QVERIFY(!rows.isEmpty());
    for (int height = 200; height <= 1200; ++height) {
        widget.resize(160, height);
        // Each row differs from the one before, so each paint reports.
        for (const auto& row : rows) {
            spy.clear();
            widget.slotShowNote(row.first, 0);
            paintOnly(widget);
            const QString named = spy.isEmpty() ? QString() : spy.last().at(0).toString();
            if (named != row.first)
                QFAIL(qPrintable(QStringLiteral("%1 at height %2 (row %3) painted as \"%4\"")
                                     .arg(row.first)
                                     .arg(height)
                                     .arg(widget.nameToPos(row.first).y())
                                     .arg(named)));
        }
    }
}

void TestNotesWidget::referenceHeightGivesTheTunedRow_data()
{
    tableRowsSnapBackInAPaint_data();
}

void TestNotesWidget::referenceHeightGivesTheTunedRow()
{
    QFETCH(QString, instrument);
    NotesWidget widget;
    configure(widget, instrument);
    widget.resize(300, StaffGeometry::referenceHeight);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    for (const auto& row : StaffGeometry::referenceRows(instrument))
        QCOMPARE(widget.nameToPos(row.first), QPoint(10, row.second));
    QCOMPARE(widget.nameToPos(QStringLiteral("C9")), QPoint(10, 0));
}

void TestNotesWidget::hoverThenPress_data()
{
    QTest::addColumn<QString>("sign");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("sample");

    // Guitar staff 324 high: F2 at 301, G2 at 288, B3 at 203, C4 at 194, E4 at 175.
    QTest::newRow("sharp F2") << "SharpSignButton" << 301 << "F2" << labelText("#", "F2", "fa2")
                              << "guitar_440_Fd2.mp3";
    QTest::newRow("sharp E4 plays F4") << "SharpSignButton" << 175 << "E4" << labelText("#", "E4", "mi4")
                                       << "guitar_440_F4.mp3";
    QTest::newRow("sharp B3 plays C4") << "SharpSignButton" << 203 << "B3" << labelText("#", "B3", "si3")
                                       << "guitar_440_C4.mp3";
    QTest::newRow("flat C4 plays B3") << "FlatSignButton" << 194 << "C4" << labelText(kFlatLabelSign, "C4", "do4")
                                      << "guitar_440_B3.mp3";
    QTest::newRow("natural G2") << "NaturalSignButton" << 288 << "G2" << labelText("", "G2", "sol2")
                                << "guitar_440_G2.mp3";
    // Line 8 (C6) lies at y 57.4, one line is 19.1 high; D6 in the space
    // above is the last note that is drawn.
    QTest::newRow("C6 on the first line")
        << "NaturalSignButton" << 58 << "C6" << labelText("", "C6", "do6") << "guitar_440_C6.mp3";
    QTest::newRow("D6 in the space above")
        << "NaturalSignButton" << 48 << "D6" << labelText("", "D6", "re6") << "guitar_440_D6.mp3";
    QTest::newRow("a pixel higher is refused and plays a name that no file has") << "NaturalSignButton" << 47 << ""
                                                                                 << ""
                                                                                 << "guitar_440_.mp3";
}

// A hover names the note silently; a press on the same place names it again
// and sounds it, respelled for sharp and flat. Above the limit both are refused.
void TestNotesWidget::hoverThenPress()
{
    QFETCH(QString, sign);
    QFETCH(int, y);
    QFETCH(QString, named);
    QFETCH(QString, label);
    QFETCH(QString, sample);
    const int accidental = sign.startsWith(QLatin1String("Sharp")) ? 1
        : sign.startsWith(QLatin1String("Flat"))                   ? -1
                                                                   : 0;
    RecordingNotesWidget widget;
    QVERIFY(showGuitarStaff(widget, QStringLiteral("Guitar")));
    QTest::mouseClick(button(widget, qPrintable(sign)), Qt::LeftButton);

    const QString labelBefore = noteLabel(widget);
    QSignalSpy spy(&widget, &NotesWidget::noteChanged);
    hover(widget, y);
    QVERIFY(widget.played.isEmpty());
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(50, y));
    QCOMPARE(widget.played.size(), 1);
    QVERIFY2(widget.played.first().endsWith(QLatin1Char('/') + sample) || widget.played.first() == sample,
        qPrintable(widget.played.first()));
    QCOMPARE(spy.count(), named.isEmpty() ? 0 : 2);
    for (const QList<QVariant>& report : spy)
        QCOMPARE(report, (QList<QVariant> { named, accidental }));
    QCOMPARE(noteLabel(widget), named.isEmpty() ? labelBefore : label);
}

void TestNotesWidget::showNote_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("accidental");
    QTest::addColumn<QString>("shownLabel");
    QTest::addColumn<QString>("paintedLabel");

    // An empty painted label: the name has no place and the head stays on E4.
    QTest::newRow("C4 natural") << "C4" << 0 << labelText("", "C4", "do") << labelText("", "C4", "do4");
    QTest::newRow("G2 sharp") << "G2" << 1 << labelText("#", "G2", "sol") << labelText("#", "G2", "sol2");
    QTest::newRow("below the guitar's range, sharp") << "D2" << 1 << labelText("#", "D2", "re") << "";
    QTest::newRow("no letter at all, flat") << "X" << -1 << labelText(kFlatLabelSign, "X", "si") << "";
    QTest::newRow("empty") << "" << 0 << labelText("", "", "si") << "";
}

void TestNotesWidget::showNote()
{
    QFETCH(QString, name);
    QFETCH(int, accidental);
    QFETCH(QString, shownLabel);
    QFETCH(QString, paintedLabel);
    NotesWidget widget;
    QVERIFY(showGuitarStaff(widget));
    hover(widget, 175);
    QSignalSpy spy(&widget, &NotesWidget::noteChanged);

    widget.slotShowNote(name, accidental);
    QCOMPARE(noteLabel(widget), shownLabel);
    QCOMPARE(widget.isFlat(), accidental < 0);
    QCOMPARE(widget.isSharp(), accidental > 0);
    QCOMPARE(spy.count(), 0);
    widget.repaint();
    if (paintedLabel.isEmpty()) {
        QCOMPARE(spy.count(), 0);
        QCOMPARE(noteLabel(widget), shownLabel);
        hover(widget, 175);
        QCOMPARE(spy.count(), 0);
        return;
    }
    // The paint reports the note back and completes the label.
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QList<QVariant> { name, accidental }));
    QCOMPARE(noteLabel(widget), paintedLabel);

    // The same letter and octave again counts as unchanged: the label keeps
    // the syllable without octave and nothing is reported.
    widget.slotShowNote(name, accidental);
    widget.repaint();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(noteLabel(widget), shownLabel);
}

void TestNotesWidget::signPressedAfterANoteWaitsForTheNext_data()
{
    QTest::addColumn<QString>("sign");
    QTest::addColumn<QString>("nextLabel");
    QTest::addColumn<int>("accidental");

    QTest::newRow("sharp") << "SharpSignButton" << labelText("#", "C4", "do4") << 1;
    QTest::newRow("flat") << "FlatSignButton" << labelText(kFlatLabelSign, "C4", "do4") << -1;
}

void TestNotesWidget::signPressedAfterANoteWaitsForTheNext()
{
    QFETCH(QString, sign);
    QFETCH(QString, nextLabel);
    QFETCH(int, accidental);
    RecordingNotesWidget widget;
    QVERIFY(showGuitarStaff(widget));
    hover(widget, 175);
    const QString e4Label = noteLabel(widget);

    QSignalSpy spy(&widget, &NotesWidget::noteChanged);
    QTest::mouseClick(button(widget, qPrintable(sign)), Qt::LeftButton);
    hover(widget, 176);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(noteLabel(widget), e4Label);
    QVERIFY(widget.played.isEmpty());

    hover(widget, 194);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).toInt(), accidental);
    QCOMPARE(noteLabel(widget), nextLabel);
}

// The sign buttons act as one group without being one: a click checks its
// button and clears the others; a click on the checked one keeps it.
void TestNotesWidget::signButtonsAreExclusive()
{
    NotesWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const QStringList signs { "FlatSignButton", "SharpSignButton", "NaturalSignButton" };
    for (const QString& clicked :
        QStringList { "FlatSignButton", "SharpSignButton", "SharpSignButton", "NaturalSignButton" }) {
        QTest::mouseClick(button(widget, qPrintable(clicked)), Qt::LeftButton);
        for (const QString& sign : signs)
            QCOMPARE(button(widget, qPrintable(sign))->isChecked(), sign == clicked);
    }
}

void TestNotesWidget::resizeKeepsTheChosenNote_data()
{
    QTest::addColumn<QString>("instrument");
    QTest::addColumn<QString>("note");

    for (const char* instrument : kInstruments) {
        for (const auto& row : StaffGeometry::referenceRows(QLatin1String(instrument)))
            QTest::addRow("%s %s", instrument, qPrintable(row.first)) << QString::fromLatin1(instrument) << row.first;
    }
}

// The note under the pointer stays the one the user chose, whatever sizes
// the window passes through: nothing is reported, the label stays.
void TestNotesWidget::resizeKeepsTheChosenNote()
{
    QFETCH(QString, instrument);
    QFETCH(QString, note);

    RecordingNotesWidget widget;
    QVERIFY(showGuitarStaff(widget, instrument));
    hover(widget, widget.nameToPos(note).y());
    const QString label = noteLabel(widget);
    QVERIFY2(label.contains(note), qPrintable(label));

    QSignalSpy changed(&widget, &NotesWidget::noteChanged);
    for (int height : { 330, 200, 641, 323, 1000, 150, 777, 401, 324, 260, 519 }) {
        widget.resize(400, height);
        paintOnly(widget);
        QVERIFY2(changed.isEmpty(), qPrintable(QStringLiteral("at height %1: %2").arg(height).arg(noteLabel(widget))));
    }
    QCOMPARE(noteLabel(widget), label);
}

QTEST_MAIN(TestNotesWidget)
#include "tst_noteswidget.moc"
