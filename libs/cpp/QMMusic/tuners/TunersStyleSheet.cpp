#include "TunersStyleSheet.h"

#include <QStringList>

namespace QMMusic {

namespace {

constexpr char kFrames[] = R"(
QFrame#MainPage, QFrame#MainSeparator {
    background: black;
    border: 2px ridge gray;
}
QFrame#TuneButtonsPanel, QFrame#TunersCommonPanel, QFrame#ModesPanel {
    color: white;
    background: rgba(10, 10, 10, 140);
    border: none;
}
QFrame#TunersExplorer {
    background-image: url(:/background.png);
}
QLabel#TunersExplorerLabel {
    color: white;
    background: transparent;
}
)";

// The string buttons and the bar's buttons share their three looks; only
// the font and the padding differ.
constexpr char kGlassButton[] = R"(
QPushButton#%1 {
    font: bold %2;
    border-radius: 5px;
    padding: %3;
    color: lightgray;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,
        stop: 1 rgba(133, 133, 135, 127), stop: 0.4 rgba(31, 31, 33, 127), stop: 0.1 rgba(133, 133, 135, 127));
}
QPushButton#%1:pressed, QPushButton#%1:checked {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,
        stop: 1 rgba(31, 31, 33, 127), stop: 0.4 rgba(133, 133, 135, 127), stop: 0.1 rgba(31, 31, 31, 127));
}
QPushButton#%1:checked {
    color: yellow;
}
QPushButton#%1::menu-indicator {
    image: none;
    width: 0px;
}
)";

constexpr char kPictureButton[] = R"(
QPushButton#%1 { border-image: url(%2); }
QPushButton#%1:hover { border-image: url(:/%1_hvr.png); }
QPushButton#%1:pressed, QPushButton#%1:checked { border-image: url(:/%1_pressed.png); }
QPushButton#%1:pressed:hover, QPushButton#%1:checked:hover { border-image: url(:/%1_pressed_hvr.png); }
)";

QString pictureButton(const QString& name, const QString& plainPicture)
{
    return QString::fromLatin1(kPictureButton).arg(name, plainPicture);
}

QString build()
{
    QString text = QLatin1String(kFrames);
    text += QString::fromLatin1(kGlassButton)
                .arg(QStringLiteral("TuneButton"), QStringLiteral("18px"), QStringLiteral("0px"));
    text += QString::fromLatin1(kGlassButton)
                .arg(QStringLiteral("PanelButton"), QStringLiteral("14px"), QStringLiteral("1px 8px"));
    const QStringList names = { QStringLiteral("GuitarButton"), QStringLiteral("BassGuitarButton"),
        QStringLiteral("UkuleleButton"), QStringLiteral("BanjoButton"), QStringLiteral("ViolinButton"),
        QStringLiteral("ViolaButton"), QStringLiteral("DoubleBassButton"), QStringLiteral("MandolinButton"),
        QStringLiteral("BalalaikaButton"), QStringLiteral("DombraButton"), QStringLiteral("OtherAppsButton") };
    for (const QString& name : names)
        text += pictureButton(name, QStringLiteral(":/%1.png").arg(name));
    // The cello's plain picture has always lived in a folder of its own.
    text += pictureButton(QStringLiteral("CelloButton"), QStringLiteral(":/_resources/imgs/CelloButton.png"));
    return text;
}

} // namespace

const QString& TunersStyleSheet::text()
{
    static const QString sheet = build();
    return sheet;
}

} // namespace QMMusic
