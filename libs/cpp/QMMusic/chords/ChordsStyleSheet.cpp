#include "ChordsStyleSheet.h"

namespace QMMusic {

namespace {

constexpr char kSheet[] = R"(
QFrame#ChordsWindow, QFrame#MainPage {
    background: rgb(30, 28, 26);
}
QPushButton#InstrumentButton {
    font: bold 14px;
    color: rgb(243, 233, 210);
    padding: 4px 14px;
    border-radius: 6px;
    border: 1px solid rgb(120, 70, 40);
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(88, 84, 80), stop: 1 rgb(34, 32, 30));
}
QPushButton#InstrumentButton:hover {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(196, 120, 72), stop: 1 rgb(120, 62, 32));
}
QPushButton#PanelButton {
    min-width: <!PANEL_BUTTON_MINWIDTH!>;
    min-height: <!PANEL_BUTTON_MINHEIGHT!>;
    font: bold <!PanelButtonFontSize!>;
    border-radius: 5px;
    color: lightgray;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(88, 84, 80), stop: 1 rgb(34, 32, 30));
}
QPushButton#PanelButton:pressed, QPushButton#PanelButton:checked {
    color: white;
    border: 2px ridge rgb(170, 170, 170);
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(196, 120, 72), stop: 1 rgb(120, 62, 32));
}
QWidget#ChordOptionsFrame, QWidget#ViewOptionsFrame, QWidget#TransposerFrame {
    background-image: url(:/panelbackground.png);
    border-radius: 8px;
    border: 2px ridge gray;
}
QPushButton#TransposerButton, QPushButton#PushButtonAdd, QPushButton#PushButtonRemove {
    height: <!PushButtonHeight!>;
    font: bold <!TRANSPOSER_BUTTON_FONTSIZE!>;
    padding: 0px 10px;
    border-radius: 5px;
    color: lightgray;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(88, 84, 80), stop: 1 rgb(34, 32, 30));
}
QPushButton#TransposerButton:checked, QPushButton#TransposerButton:pressed,
QPushButton#PushButtonAdd:pressed, QPushButton#PushButtonRemove:pressed {
    color: white;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(196, 120, 72), stop: 1 rgb(120, 62, 32));
}
QPushButton#TransposerButton:disabled, QPushButton#PushButtonRemove:disabled {
    color: rgb(110, 106, 100);
}
QPushButton#PlayButton {
    min-width: <!PlayButtonSize!>;
    min-height: <!PlayButtonSize!>;
    max-width: <!PlayButtonSize!>;
    max-height: <!PlayButtonSize!>;
    border-image: url(:/Play.png);
}
QPushButton#PlayButton:hover {
    border-image: url(:/Play_hvr.png);
}
QPushButton#PlayButton:pressed {
    border-image: url(:/Play_prs.png);
}
QFrame#InstrumentLabel_guitar { border-image: url(:/guitar.png); }
QFrame#InstrumentLabel_piano { border-image: url(:/piano.png); }
QFrame#InstrumentLabel_ukulele { border-image: url(:/ukulele.png); }
QFrame#InstrumentLabel_mandolin { border-image: url(:/mandolin.png); }
QFrame#InstrumentLabel_banjo { border-image: url(:/banjo.png); }
QFrame#InstrumentLabel_bass { border-image: url(:/bass.png); }
QFrame#InstrumentLabel_bass2 { border-image: url(:/bass2.png); }
QFrame#InstrumentLabel_balalaika { border-image: url(:/balalaika.png); }
QMenu#TransposerMenu, QMenu#FavoritesMenu {
    color: white;
    background: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, stop: 0 rgb(70, 66, 62), stop: 1 rgb(20, 19, 18));
}
QMenu#TransposerMenu { font-size: <!TRANSPOSER_MENU_FONTSIZE!>; }
QMenu#FavoritesMenu { font-size: <!FAVORITES_MENU_FONTSIZE!>; }
QMenu#TransposerMenu::item, QMenu#FavoritesMenu::item {
    padding: 2px 25px 2px 20px;
}
QMenu#TransposerMenu::item:selected, QMenu#FavoritesMenu::item:selected {
    background: rgb(160, 92, 52);
}
QTabBar::tab {
    height: <!TabHeight!>;
    min-width: <!TabWidth!>;
    font: bold <!TabFontSize!>;
    color: lightgray;
    border-radius: 4px;
    margin: 1px;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(88, 84, 80), stop: 1 rgb(34, 32, 30));
}
QTabBar::tab:selected {
    color: white;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 rgb(196, 120, 72), stop: 1 rgb(120, 62, 32));
}
QTabBar QToolButton {
    width: <!TabScrollerWidth!>;
}
QMenu { font-size: <!MENU_FONTSIZE!>; }
QPushButton#PushButton, QPushButton#DeleteButton {
    min-height: <!PushButtonHeight!>;
    font-size: <!PUSHBUTTON_FONTSIZE!>;
}
QLabel#ChordName {
    min-height: )";

constexpr char kSheetEnd[] = R"(px;
}
)";

struct Placeholder
{
    const char* name;
    const char* desktop;
    const char* pocket;
};

const Placeholder kPlaceholders[] = {
    { "<!PANEL_BUTTON_MINWIDTH!>", "32px", "28px" },
    { "<!PANEL_BUTTON_MINHEIGHT!>", "32px", "28px" },
    { "<!PanelButtonFontSize!>", "16px", "16px" },
    { "<!MENU_FONTSIZE!>", "14px", "22px" },
    { "<!TRANSPOSER_MENU_FONTSIZE!>", "14px", "10px" },
    { "<!FAVORITES_MENU_FONTSIZE!>", "14px", "16px" },
    { "<!TRANSPOSER_BUTTON_FONTSIZE!>", "14px", "11px" },
    { "<!PUSHBUTTON_FONTSIZE!>", "14px", "14px" },
    { "<!TabHeight!>", "40px", "40px" },
    { "<!TabWidth!>", "55px", "55px" },
    { "<!TabFontSize!>", "12px", "12px" },
    { "<!TabScrollerWidth!>", "40px", "40px" },
    { "<!PlayButtonSize!>", "48px", "48px" },
    { "<!ToolButonHeight!>", "32px", "32px" },
    { "<!ToolButonWidth!>", "50px", "50px" },
    { "<!ToolMenuSize!>", "44px", "44px" },
    { "<!PushButtonHeight!>", "32px", "32px" },
    { "<!InstrumentsButonWidth!>", "128px", "128px" },
    { "<!ItemSize!>", "64px", "64px" },
};

} // namespace

QString ChordsStyleSheet::text(bool pocket, int smallestDimension)
{
    QString sheet = QLatin1String(kSheet) + QString::number(smallestDimension / 14)
        + QStringLiteral("px;    font: bold ") + QString::number(smallestDimension / 25) + QLatin1String(kSheetEnd);
    for (const Placeholder& placeholder : kPlaceholders)
        sheet.replace(
            QLatin1String(placeholder.name), QLatin1String(pocket ? placeholder.pocket : placeholder.desktop));
    return sheet;
}

} // namespace QMMusic
