#include "AppStyle.h"
#include "MMessageBox.h"

#include <QApplication>
#include <QtTest>

using QMWidgets::AppStyle;

// The message boxes' pictures come from the program's art in two sizes, so
// that a box on a high-density screen shows them sharp; the style's other
// pictures stay the style's.
class tst_AppStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void messagePictureHasBothSizes_data();
    void messagePictureHasBothSizes();
    void otherPicturesAreTheStyles();
};

void tst_AppStyle::initTestCase()
{
    QApplication::setStyle(new AppStyle);
}

void tst_AppStyle::messagePictureHasBothSizes_data()
{
    QTest::addColumn<int>("standard");
    QTest::addColumn<int>("box");
    QTest::newRow("information") << int(QStyle::SP_MessageBoxInformation) << int(QMWidgets::MMessageBox::Information);
    QTest::newRow("question") << int(QStyle::SP_MessageBoxQuestion) << int(QMWidgets::MMessageBox::Question);
    QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning) << int(QMWidgets::MMessageBox::Warning);
    QTest::newRow("critical") << int(QStyle::SP_MessageBoxCritical) << int(QMWidgets::MMessageBox::Critical);
}

void tst_AppStyle::messagePictureHasBothSizes()
{
    QFETCH(int, standard);
    QFETCH(int, box);
    const QIcon icon = QApplication::style()->standardIcon(QStyle::StandardPixmap(standard));
    const QList<QSize> sizes = icon.availableSizes();
    QVERIFY2(sizes.contains(QSize(64, 64)) && sizes.contains(QSize(128, 128)),
        qPrintable(QStringLiteral("%1 sizes").arg(sizes.size())));
    // A picture for twice the pixels comes from the large file, not scaled up.
    const QPixmap large = icon.pixmap(QSize(128, 128));
    QCOMPARE(large.size(), QSize(128, 128));
    QVERIFY(!QMWidgets::MMessageBox::icon(QMWidgets::MMessageBox::Icon(box)).isNull());
}

void tst_AppStyle::otherPicturesAreTheStyles()
{
    AppStyle style;
    QStyle* base = style.baseStyle();
    const QIcon ours = style.standardIcon(QStyle::SP_DialogOkButton);
    const QIcon theirs = base->standardIcon(QStyle::SP_DialogOkButton);
    QCOMPARE(ours.availableSizes(), theirs.availableSizes());
}

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    tst_AppStyle test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AppStyle.moc"
