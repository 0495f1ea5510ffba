// The staff repaints at every mouse move over it; this measures one such
// paint of a guitar staff 1280 by 400, with the clef and head pictures cached.
#include "NotesWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

using QMMusic::NotesWidget;

class BenchNotesWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void hoverPaint_data();
    void hoverPaint();
    void cleanupTestCase();

private:
    NotesWidget* m_widget = nullptr;
};

void BenchNotesWidget::initTestCase()
{
    m_widget = new NotesWidget;
    m_widget->setStartLine(8);
    m_widget->setLines(22);
    m_widget->setTranslateLines(5);
    m_widget->setPaperHeightFactor(1.3f);
    m_widget->setInstrumentName(QStringLiteral("guitar"));
    m_widget->resize(1280, 400);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget));
    m_widget->repaint();
}

void BenchNotesWidget::hoverPaint_data()
{
    QTest::addColumn<int>("firstY");
    QTest::addColumn<int>("secondY");

    // At 400 high a half-line is 11.8 pixels: 214 and 218 both lie on E4,
    // 214 and 240 are E4 and C4.
    QTest::newRow("moving within one note") << 214 << 218;
    QTest::newRow("moving from note to note") << 214 << 240;
}

void BenchNotesWidget::hoverPaint()
{
    QFETCH(int, firstY);
    QFETCH(int, secondY);
    bool first = true;
    QBENCHMARK
    {
        const QPointF pos(640, first ? firstY : secondY);
        first = !first;
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(m_widget, &move);
        m_widget->repaint();
    }
}

void BenchNotesWidget::cleanupTestCase()
{
    delete m_widget;
}

QTEST_MAIN(BenchNotesWidget)
#include "bench_NotesWidget.moc"
