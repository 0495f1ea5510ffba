#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

const QStringList kInstruments = { QStringLiteral("Violin"), QStringLiteral("Viola"), QStringLiteral("Cello"),
    QStringLiteral("DoubleBass"), QStringLiteral("Guitar"), QStringLiteral("BassGuitar"), QStringLiteral("Ukulele"),
    QStringLiteral("Banjo"), QStringLiteral("Mandolin"), QStringLiteral("Balalaika"), QStringLiteral("Dombra") };
const QStringList kLooks
    = { QString(), QStringLiteral("_hvr"), QStringLiteral("_pressed"), QStringLiteral("_pressed_hvr") };

// The pictures one generated .qrc lists.
QSet<QString> listed(const QString& qrc)
{
    QFile file(QStringLiteral(QM_ART_DIR) + qrc);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> names;
    const QRegularExpression entry(QStringLiteral("<file>([^<]+)</file>"));
    auto match = entry.globalMatch(QString::fromUtf8(file.readAll()));
    while (match.hasNext())
        names.insert(match.next().captured(1));
    return names;
}

int luma(QRgb pixel)
{
    return (qRed(pixel) * 299 + qGreen(pixel) * 587 + qBlue(pixel) * 114) / 1000;
}

double meanLuma(const QImage& image, const QRect& area)
{
    qint64 sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            sum += luma(image.pixel(x, y));
    }
    return double(sum) / (area.width() * area.height());
}

} // namespace

// The Tuners program's pictures: every name that its style sheet and pages
// look up is there, in the program's own group and at its size, none hides
// a picture of the other programs, the instruments stand where the page
// leaves room for them, and the button looks differ as the style sheet
// expects.
class tst_TunerArt : public QObject
{
    Q_OBJECT

private slots:
    void everyNamedPictureIsThere_data();
    void everyNamedPictureIsThere();
    void noTunersPictureTakesACommonName();
    void instrumentStandsCentredAboveTheButtons_data();
    void instrumentStandsCentredAboveTheButtons();
    void buttonLooksDiffer_data();
    void buttonLooksDiffer();
};

void tst_TunerArt::everyNamedPictureIsThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("qrc");
    QTest::addColumn<QSize>("size");
    const QString tuners = QStringLiteral("art_Tuners.qrc");
    for (const QString& instrument : kInstruments)
        QTest::newRow(qPrintable(instrument)) << instrument + QStringLiteral(".jpg") << tuners << QSize(1000, 1400);
    QStringList buttons;
    for (const QString& instrument : kInstruments)
        buttons << instrument + QStringLiteral("Button");
    buttons << QStringLiteral("OtherAppsButton");
    for (const QString& button : buttons) {
        for (const QString& look : kLooks) {
            QTest::newRow(qPrintable(button + look))
                << button + look + QStringLiteral(".png") << tuners << QSize(92, 92);
            QTest::newRow(qPrintable(button + look + QStringLiteral("@2x")))
                << button + look + QStringLiteral("@2x.png") << tuners << QSize(184, 184);
        }
    }
    QTest::newRow("cello's plain path") << QStringLiteral("_resources/imgs/CelloButton.png") << tuners << QSize(92, 92);
    QTest::newRow("explorer's ground") << QStringLiteral("background.png") << tuners << QSize(256, 256);
    QTest::newRow("explorer's ground @2x") << QStringLiteral("background@2x.png") << tuners << QSize(512, 512);
    for (const char* icon : { "musthave", "nicetohave", "read", "ohr", "eye", "wikipedia" }) {
        QTest::newRow(icon) << QLatin1String(icon) + QStringLiteral(".png") << QStringLiteral("art.qrc")
                            << QSize(32, 32);
    }
}

void tst_TunerArt::everyNamedPictureIsThere()
{
    QFETCH(QString, name);
    QFETCH(QString, qrc);
    QFETCH(QSize, size);
    QVERIFY2(listed(qrc).contains(name), qPrintable(name + QStringLiteral(" not in ") + qrc));
    const QImage picture(QStringLiteral(":/") + name);
    QCOMPARE(picture.size(), size);
}

// Two pictures of one name in two groups that a program links together
// would leave it to the order of registration which one it shows.
void tst_TunerArt::noTunersPictureTakesACommonName()
{
    const QSet<QString> tuners = listed(QStringLiteral("art_Tuners.qrc"));
    QVERIFY(!tuners.isEmpty());
    const QSet<QString> common = listed(QStringLiteral("art.qrc"));
    QVERIFY(!common.isEmpty());
    QStringList both = QSet<QString>(tuners).intersect(common).values();
    both.sort();
    QVERIFY2(both.isEmpty(), qPrintable(both.join(QLatin1Char(' '))));
}

void tst_TunerArt::instrumentStandsCentredAboveTheButtons_data()
{
    QTest::addColumn<QString>("instrument");
    for (const QString& instrument : kInstruments)
        QTest::newRow(qPrintable(instrument)) << instrument;
}

// The page lays its string buttons over the lower part of the picture: the
// instrument fills most of the height above them, centred, on black.
void tst_TunerArt::instrumentStandsCentredAboveTheButtons()
{
    QFETCH(QString, instrument);
    const QImage picture(QStringLiteral(":/") + instrument + QStringLiteral(".jpg"));
    QVERIFY(!picture.isNull());
    int top = picture.height();
    int bottom = -1;
    qint64 columnSum = 0;
    qint64 count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (luma(picture.pixel(x, y)) > 60) {
                top = qMin(top, y);
                bottom = qMax(bottom, y);
                columnSum += x;
                ++count;
            }
        }
    }
    QVERIFY(count > 0);
    QVERIFY2(bottom - top > picture.height() * 0.72, qPrintable(QStringLiteral("%1..%2").arg(top).arg(bottom)));
    QVERIFY2(bottom < picture.height() * 0.85, qPrintable(QString::number(bottom)));
    QVERIFY(qAbs(double(columnSum) / count - picture.width() / 2.0) < picture.width() * 0.04);
    for (const QPoint corner : { QPoint(0, 0), QPoint(picture.width() - 1, 0), QPoint(0, picture.height() - 1),
             QPoint(picture.width() - 1, picture.height() - 1) })
        QVERIFY(luma(picture.pixel(corner)) < 8);
}

void tst_TunerArt::buttonLooksDiffer_data()
{
    QTest::addColumn<QString>("button");
    for (const QString& instrument : kInstruments)
        QTest::newRow(qPrintable(instrument)) << instrument + QStringLiteral("Button");
    QTest::newRow("other programs") << QStringLiteral("OtherAppsButton");
}

// Hover brightens the tile; pressed and checked glow with a warm yellow rim
// that the plain and hovered looks lack.
void tst_TunerArt::buttonLooksDiffer()
{
    QFETCH(QString, button);
    QImage looks[4];
    for (int i = 0; i < 4; ++i) {
        looks[i] = QImage(QStringLiteral(":/") + button + kLooks[i] + QStringLiteral("@2x.png"))
                       .convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!looks[i].isNull());
    }
    const QRect face(30, 30, 124, 124);
    QVERIFY(meanLuma(looks[1], face) > meanLuma(looks[0], face) + 8);
    QVERIFY(meanLuma(looks[3], face) > meanLuma(looks[2], face) + 8);
    // The middle of the left rim.
    auto warmRim = [](const QImage& image) {
        for (int x = 4; x < 16; ++x) {
            const QColor c = image.pixelColor(x, image.height() / 2);
            if (c.alpha() > 200 && c.red() > 200 && c.green() > 175 && c.blue() < 120)
                return true;
        }
        return false;
    };
    QVERIFY(!warmRim(looks[0]));
    QVERIFY(!warmRim(looks[1]));
    QVERIFY(warmRim(looks[2]));
    QVERIFY(warmRim(looks[3]));
}

QTEST_MAIN(tst_TunerArt)
#include "tst_tunerart.moc"
