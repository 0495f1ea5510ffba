#include "AppStyleSheet.h"

namespace QMWidgets {

// Gradients run from bottom to top with stops at 1, 0.4 and 0.1: "dark panel",
// "panel selected" and "translucent metal" are the three families used below.
static const char s_styleSheet[] = R"CSS(
QDialog {
    color: white;
    background: qlineargradient(x1:1, y1:1, x2:0, y2:0, stop:0 rgb(10,10,10), stop:1 rgb(80,80,80));
    border: 2px ridge gray;
    border-radius: 2px;
}
QMenu {
    color: white;
    background: qlineargradient(x1:1, y1:1, x2:0, y2:0, stop:0 rgb(10,10,10), stop:1 rgb(80,80,80));
    border: 2px ridge gray;
    border-radius: 5px;
}
QMenu::item {
    padding: 2px 25px 2px 20px;
    margin: 2px;
    border: 1px solid transparent;
}
QMenu::item:selected {
    border-radius: 5px;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(131,167,222,50), stop:0.4 rgb(0,0,155), stop:0.1 rgb(4,12,100));
}
QMenu::item:disabled {
    color: gray;
}
QMenu::separator {
    height: 1px;
    background: lightgray;
    margin-left: 10px;
    margin-right: 5px;
}
QMenu::indicator {
    background: white;
    width: 13px;
    height: 13px;
}
QLabel {
    color: white;
    background: transparent;
}
QLabel#NoteLabel {
    color: black;
    background: transparent;
    border-radius: 0px;
    padding: 0px;
}
QLabel#SimpleText {
    color: white;
    background: transparent;
    border-radius: 0px;
    padding: 0px;
}
QLabel#MainWidgetBlender {
    background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5, stop:0 rgba(200,200,200,200), stop:0.7 rgba(40,40,40,200), stop:1 rgba(0,0,0,200));
}
QLabel#LogoLabel {
    border-image: url(:/app.png);
}
QLabel#GuitarLeftLabel, QLabel#GuitarRightLabel {
    background: black;
    border-radius: 0px;
    border: none;
}
QLineEdit {
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(80,80,80,255), stop:0.4 rgba(133,133,135,255), stop:0.1 rgba(80,80,80,255));
    border-radius: 5px;
    min-height: 32px;
    color: white;
    border: 1px inset white;
    selection-background-color: white;
}
QCheckBox {
    color: lightgray;
}
QFrame#MainPage, QFrame#MainSeparator {
    background: rgb(71,71,100);
    border: 2px ridge gray;
}
QFrame#ItemsPanel {
    color: white;
    background: rgb(40,40,40);
    border: 2px ridge gray;
}
QFrame#MenuBar {
    min-height: 45px;
    max-height: 45px;
    padding-bottom: 7px;
    border-image: url(:/backgroundbar.png);
    border: none;
}
QFrame#DecoratedNotesWidget, QFrame#DecoratedNotesWidgetGuitar {
    background: white;
    border-image: url(:/guitarpaper.jpg);
}
QFrame#NotesLernBar {
    color: white;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgb(20,20,20), stop:0.4 rgb(90,90,90), stop:0.1 rgb(20,20,20));
}
QFrame#InstrumentLabel_mandolin, QFrame#InstrumentLabel_guitar, QFrame#InstrumentLabel_piano,
QFrame#InstrumentLabel_Guitar, QFrame#InstrumentLabel_banjo, QFrame#InstrumentLabel_balalaika,
QFrame#InstrumentLabel_bass, QFrame#InstrumentLabel_bass2 {
    color: white;
    border-radius: 0px;
    padding: 0px;
}
QFrame#InstrumentLabel_mandolin { border-image: url(:/mandolin.png); }
QFrame#InstrumentLabel_guitar { border-image: url(:/guitar.png); }
QFrame#InstrumentLabel_piano { border-image: url(:/piano.png); }
QFrame#InstrumentLabel_Guitar { border-image: url(:/Guitar.png); }
QFrame#InstrumentLabel_banjo { border-image: url(:/banjo.png); }
QFrame#InstrumentLabel_balalaika { border-image: url(:/balalaika.png); }
QFrame#InstrumentLabel_bass, QFrame#InstrumentLabel_bass2 { border-image: url(:/bass.png); }
QTabWidget::tab-bar {
    alignment: center;
}
QTabBar::tab {
    height: 40px;
    width: 55px;
    font-size: 12px;
    color: lightgray;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(50,50,50,220), stop:0.4 rgba(10,10,10,220), stop:0.1 rgba(50,50,50,220));
}
QTabBar::tab:selected {
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(120,120,120,220), stop:0.4 rgba(30,30,30,220), stop:0.1 rgba(120,120,120,220));
}
QTabBar::scroller {
    width: 40px;
}
QTabBar QToolButton::left-arrow {
    image: url(:/arrowleft.png);
}
QTabBar QToolButton::right-arrow {
    image: url(:/arrowright.png);
}
QPushButton#PushButton {
    font: bold 14px;
    border: 1px solid gray;
    border-radius: 5px;
    color: lightgray;
    padding: 1px 8px 1px 8px;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgb(60,60,60), stop:0.4 rgb(30,30,30), stop:0.1 rgb(60,60,60));
}
QPushButton#PushButton:pressed {
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgb(31,31,33), stop:0.4 rgb(80,80,80), stop:0.1 rgb(31,31,31));
}
QPushButton#PushButton:focus {
    border: 1px solid white;
    color: white;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgb(90,90,90), stop:0.4 rgb(41,41,43), stop:0.1 rgb(90,90,90));
}
QPushButton#PanelButton {
    min-width: 32px;
    min-height: 32px;
    font: bold 16px;
    border-radius: 5px;
    color: lightgray;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(50,50,50,220), stop:0.4 rgba(10,10,10,220), stop:0.1 rgba(50,50,50,220));
}
QPushButton#PanelButton:pressed, QPushButton#PanelButton:checked {
    border: 2px ridge rgb(170,170,170);
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(120,120,120,220), stop:0.4 rgba(30,30,30,220), stop:0.1 rgba(120,120,120,220));
}
QPushButton#TuneButton {
    font: bold 18px;
    border-radius: 5px;
    color: lightgray;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(133,133,135,127), stop:0.4 rgba(31,31,33,127), stop:0.1 rgba(133,133,135,127));
}
QPushButton#TuneButton:pressed, QPushButton#TuneButton:checked {
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:1 rgba(133,133,135,127), stop:0.4 rgba(31,31,33,127), stop:0.1 rgba(133,133,135,127));
}
QPushButton#HelpSlideButton {
    border-radius: 9px;
    font: bold 10px;
    color: gray;
    border: none;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(133,133,135,127), stop:0.4 rgba(31,31,33,127), stop:0.1 rgba(133,133,135,127));
}
QPushButton#HelpSlideButton:pressed, QPushButton#HelpSlideButton:checked {
    color: white;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(131,167,222,50), stop:0.4 rgb(0,0,155), stop:0.1 rgb(4,12,100));
}
QPushButton#BassItem1, QPushButton#BassItem2 {
    border: 1px solid gray;
    border-radius: 5px;
    font: bold 14px;
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgb(80,80,80), stop:0.4 rgb(31,31,33), stop:0.1 rgb(80,80,80));
}
QPushButton#BassItem1:checked, QPushButton#BassItem2:checked {
    border: 2px ridge rgb(170,170,170);
    background: qlineargradient(x1:0, y1:1, x2:0, y2:0, stop:1 rgba(130,130,130,220), stop:0.4 rgba(30,30,30,220), stop:0.1 rgba(130,130,130,220));
}
QPushButton#PushButtonAdd, QPushButton#PushButtonRemove {
    border: 1px solid gray;
    border-radius: 20px;
    color: lightgray;
    font: bold 28px;
    padding: -4px 1px 1px 1px;
}
QPushButton#PushButtonAdd:disabled, QPushButton#PushButtonRemove:disabled {
    color: #AAAAAA;
}
QPushButton#PlayButton {
    min-width: 48px; max-width: 48px;
    min-height: 48px; max-height: 48px;
    border-image: url(:/Play.png);
}
QPushButton#PlayButton:hover { border-image: url(:/Play_hvr.png); }
QPushButton#PlayButton:pressed, QPushButton#PlayButton:checked { border-image: url(:/Play_prs.png); }
QPushButton#PlayButton:pressed:hover, QPushButton#PlayButton:checked:hover { border-image: url(:/Play_prs_hvr.png); }
QPushButton::menu-indicator {
    margin: 0px;
    subcontrol-origin: border;
    subcontrol-position: bottom midle;
    width: 4px;
    height: 4px;
    image: url(:/spinbox_button2.png);
}
QPushButton#JoinButton { border-image: url(:/join.png); }
QPushButton#JoinButton:hover { border-image: url(:/join_hover.png); }
QPushButton#FaceBookJoinButton { border-image: url(:/facebookjoin.png); }
QPushButton#FaceBookJoinButton:hover { border-image: url(:/facebookjoin_hover.png); }
QPushButton#VKontakteJoinButton { border-image: url(:/vkontaktejoin.png); }
QPushButton#VKontakteJoinButton:hover { border-image: url(:/vkontaktejoin_hover.png); }
QPushButton#TwitterJoinButton { border-image: url(:/twitterjoin.png); }
QPushButton#TwitterJoinButton:hover { border-image: url(:/twitterjoin_hover.png); }
QPushButton#EmailJoinButton { border-image: url(:/emailjoin.png); }
QPushButton#EmailJoinButton:hover { border-image: url(:/emailjoin_hover.png); }
QPushButton#FaceBookShareButton { border-image: url(:/facebookshare.png); }
QPushButton#FaceBookShareButton:hover { border-image: url(:/facebookshare_hover.png); }
QPushButton#VKontakteShareButton { border-image: url(:/vkontakteshare.png); }
QPushButton#VKontakteShareButton:hover { border-image: url(:/vkontakteshare_hover.png); }
QPushButton#TwitterShareButton { border-image: url(:/twittershare.png); }
QPushButton#TwitterShareButton:hover { border-image: url(:/twittershare_hover.png); }
QPushButton#EmailShareButton { border-image: url(:/emailshare.png); }
QPushButton#EmailShareButton:hover { border-image: url(:/emailshare_hover.png); }
QPushButton#AppButton { border-image: url(:/AppButton.png); }
QPushButton#AppButton:hover { border-image: url(:/AppButton_hover.png); }
QPushButton#MoreAppsButton { border-image: url(:/MoreAppsButton.png); }
QPushButton#MoreAppsButton:hover { border-image: url(:/MoreAppsButton_hover.png); }
QPushButton#RateButton { border-image: url(:/RateButton.png); }
QPushButton#RateButton:hover { border-image: url(:/RateButton_hover.png); }
QPushButton#ShareButton { border-image: url(:/share.png); }
QPushButton#ShareButton:hover { border-image: url(:/share_hover.png); }
QPushButton#IntroButton { border-image: url(:/Help.png); }
QPushButton#IntroButton:hover { border-image: url(:/Help_hover.png); }
QPushButton#MoreButton { border-image: url(:/More.png); }
QPushButton#MoreButton:hover { border-image: url(:/More_hover.png); }
QPushButton#DualButtonLeft { color: white; border-image: url(:/DualButtonLeft.png); }
QPushButton#DualButtonLeft:pressed, QPushButton#DualButtonLeft:checked { border-image: url(:/DualButtonLeft_checked.png); }
QPushButton#DualButtonRight { color: white; border-image: url(:/DualButtonRight.png); }
QPushButton#DualButtonRight:pressed, QPushButton#DualButtonRight:checked { border-image: url(:/DualButtonRight_checked.png); }
QPushButton#RoundButton { color: white; border-image: url(:/RoundButton.png); }
QPushButton#RoundButton:pressed, QPushButton#RoundButton:checked { border-image: url(:/RoundButton_checked.png); }
QPushButton#Key { color: black; border-image: url(:/Key.png); }
QPushButton#Key:pressed, QPushButton#Key:hover { border-image: url(:/Key_hover.png); }
QPushButton#Key:disabled { border-image: url(:/Key_disabled.png); }
QPushButton#Keyd { color: white; border-image: url(:/Keyd.png); }
QPushButton#Keyd:pressed, QPushButton#Keyd:hover { border-image: url(:/Keyd_hover.png); }
QPushButton#Keyd:disabled { border-image: url(:/Keyd_disabled.png); }
QPushButton#FlatSignButton { font: bold 10px; color: gray; border-image: url(:/flatsign.png); }
QPushButton#FlatSignButton:pressed, QPushButton#FlatSignButton:checked { border-image: url(:/flatsign_framed.png); }
QPushButton#SharpSignButton { font: bold 10px; color: gray; border-image: url(:/sharpsign.png); }
QPushButton#SharpSignButton:pressed, QPushButton#SharpSignButton:checked { color: white; border-image: url(:/sharpsign_framed.png); }
QPushButton#NaturalSignButton { font: bold 10px; color: gray; border-image: url(:/naturalsign.png); }
QPushButton#NaturalSignButton:pressed, QPushButton#NaturalSignButton:checked { color: white; border-image: url(:/naturalsign_framed.png); }
)CSS";

QString AppStyleSheet::text()
{
    return QString::fromLatin1(s_styleSheet);
}

} // namespace QMWidgets
