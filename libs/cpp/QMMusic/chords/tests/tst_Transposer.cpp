#include "App.h"
#include "ChordsButtonsPanel.h"
#include "ChordsTabBar.h"
#include "FavoritesDeleteDlg.h"
#include "MMessageBox.h"
#include "Transposer.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace QMMusic;

namespace {

const QString kFlat(QChar(0x266D));

QMWidgets::App* app()
{
    return QMWidgets::App::theApp();
}

QAction* menuEntry(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// Answers the next modal dialog: the text dialog gets the name, a message
// box says Yes and the delete dialog accepts.
void answerNextDialog(const QString& name)
{
    QTimer::singleShot(0, [name]() {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* input = qobject_cast<QInputDialog*>(modal)) {
            input->setTextValue(name);
            input->accept();
        } else if (auto* box = qobject_cast<QMWidgets::MMessageBox*>(modal)) {
            box->done(QMessageBox::Yes);
        } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
            dialog->accept();
        }
    });
}

} // namespace

class tst_Transposer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void transpose_data();
    void transpose();
    void buttonsFollowTheTabs();
    void clickShowsAndSoundsTheChord_data();
    void clickShowsAndSoundsTheChord();
    void favoritesRoundTrip();
};

void tst_Transposer::init()
{
    // Every test starts as a first start would.
    app()->settings()->remove(QCoreApplication::applicationName());
}

void tst_Transposer::transpose_data()
{
    QTest::addColumn<QStringList>("tabs");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("A up 11") << QStringList { "A\n" } << "11 #" << QStringList { "A" + kFlat + "\n" };
    QTest::newRow("C down 1") << QStringList { "C\n" } << "1 " + kFlat << QStringList { "B\n" };
    QTest::newRow("C up 1 goes to flats") << QStringList { "C\n" } << "1 #" << QStringList { "D" + kFlat + "\n" };
    QTest::newRow("C sharp up 1 stays in sharps") << QStringList { "C #\n" } << "1 #" << QStringList { "D\n" };
    QTest::newRow("D up 1 never D sharp") << QStringList { "D\nm" } << "1 #" << QStringList { "E" + kFlat + "\nm" };
    QTest::newRow("F sharp 7 down 1") << QStringList { "F #\n7" } << "1 " + kFlat << QStringList { "F\n7" };
    QTest::newRow("B flat down 11") << QStringList { "B" + kFlat + "\nmaj7" } << "11 " + kFlat
                                    << QStringList { "B\nmaj7" };
    QTest::newRow("unknown spellings stay") << QStringList { "E #\n", "C" + kFlat + "\nm", "B #\n7" } << "2 #"
                                            << QStringList { "E #\n", "C" + kFlat + "\nm", "B #\n7" };
    QTest::newRow("a song up a fifth") << QStringList { "B\nm", "E\nm", "F #\n7", "A\n7" } << "7 #"
                                       << QStringList { "G" + kFlat + "\nm", "B\nm", "C #\n7", "E\n7" };
}

void tst_Transposer::transpose()
{
    QFETCH(QStringList, tabs);
    QFETCH(QString, entry);
    QFETCH(QStringList, expected);

    ChordsButtonsPanel panel;
    Transposer transposer;
    transposer.setChordsButtonsPanel(&panel);
    transposer.setCurrentChords(tabs);
    QCOMPARE(transposer.transposeMenu()->actions().size(), 22);
    QAction* action = menuEntry(transposer.transposeMenu(), entry);
    QVERIFY2(action, qPrintable(entry));
    action->trigger();
    QCOMPARE(transposer.currentChords(), expected);
}

// Without tabs only adding and the favourites stay usable.
void tst_Transposer::buttonsFollowTheTabs()
{
    ChordsButtonsPanel panel;
    Transposer transposer;
    transposer.setChordsButtonsPanel(&panel);
    QAction* save = menuEntry(transposer.favoritesMenu(), QStringLiteral("&Save..."));
    const auto enabled = [&]() {
        int count = 0;
        for (auto* button : transposer.findChildren<QPushButton*>())
            count += button->isEnabled();
        return count;
    };
    QCOMPARE(enabled(), 2);
    QVERIFY(!save->isEnabled());

    panel.setChord(QStringLiteral("C #m7"));
    QTest::mouseClick(transposer.findChild<QPushButton*>(QStringLiteral("PushButtonAdd")), Qt::LeftButton);
    QCOMPARE(transposer.currentChords(), QStringList({ "C #\nm7" }));
    QCOMPARE(enabled(), 5);
    QVERIFY(save->isEnabled());

    QTest::mouseClick(transposer.findChild<QPushButton*>(QStringLiteral("PushButtonRemove")), Qt::LeftButton);
    QCOMPARE(enabled(), 2);
    QVERIFY(!save->isEnabled());
}

void tst_Transposer::clickShowsAndSoundsTheChord_data()
{
    QTest::addColumn<bool>("soundOn");
    QTest::newRow("sound on") << true;
    QTest::newRow("sound off") << false;
}

// A click on a tab shows its chord on the panel first and then, with the
// sound on, asks for it to be played.
void tst_Transposer::clickShowsAndSoundsTheChord()
{
    QFETCH(bool, soundOn);

    app()->setSettingsValue(QStringLiteral("TransposerSoundOn"), soundOn);
    ChordsButtonsPanel panel;
    Transposer transposer;
    transposer.setChordsButtonsPanel(&panel);
    transposer.setCurrentChords({ QStringLiteral("D\n"), QStringLiteral("G\nm") });
    transposer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&transposer));
    QString shownWhenPlayed;
    connect(&transposer, &Transposer::play, [&]() { shownWhenPlayed = panel.currentChord(); });
    QSignalSpy chords(&panel, &ChordsButtonsPanel::chordChanged);

    ChordsTabBar* tabs = transposer.tabBar();
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center());
    QCOMPARE(transposer.currentChordIndex(), 1);
    QCOMPARE(chords.count(), 1);
    QCOMPARE(panel.currentChord(), QStringLiteral("Gm"));
    QCOMPARE(shownWhenPlayed, soundOn ? QStringLiteral("Gm") : QString());
    QCOMPARE(transposer.soundButton()->isChecked(), soundOn);
}

// The example on a first start; a saved song comes back at the next start;
// deleting every favourite leaves none, not the example.
void tst_Transposer::favoritesRoundTrip()
{
    {
        ChordsButtonsPanel panel;
        Transposer transposer;
        transposer.setChordsButtonsPanel(&panel);
        QAction* example
            = menuEntry(transposer.favoritesMenu(), QStringLiteral("Ivo Marlen - Et Si Tu N'existais Pas"));
        QVERIFY(example);
        example->trigger();
        QCOMPARE(transposer.currentChords().size(), 10);
        QCOMPARE(transposer.currentChords().at(2), QStringLiteral("F #\n7"));

        transposer.setCurrentChords({ QStringLiteral("A\nm"), QStringLiteral("E\n7") });
        answerNextDialog(QStringLiteral("Anthem"));
        transposer.slotSaveFavorite();
    }
    QCOMPARE(app()->settingsValue(QStringLiteral("FavoritesCount")).toInt(), 2);
    QCOMPARE(app()->settingsValue(QStringLiteral("Favorite0")).toString(), QStringLiteral("Anthem:A\nm,E\n7"));

    ChordsButtonsPanel panel;
    Transposer transposer;
    transposer.setChordsButtonsPanel(&panel);
    menuEntry(transposer.favoritesMenu(), QStringLiteral("Anthem"))->trigger();
    QCOMPARE(transposer.currentChords(), QStringList({ "A\nm", "E\n7" }));
    // The delete dialog lists the last name first.
    QCOMPARE(transposer.deleteDialog()->list()->count(), 2);
    for (int left = 2; left > 0; --left) {
        answerNextDialog(QString());
        QTimer::singleShot(50, []() { answerNextDialog(QString()); });
        transposer.slotDeleteFavorite();
        QTRY_COMPARE(app()->settingsValue(QStringLiteral("FavoritesCount")).toInt(), left - 1);
    }
    Transposer next;
    QCOMPARE(next.deleteDialog()->list()->count(), 0);
}

int main(int argc, char* argv[])
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Chords"));
    tst_Transposer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Transposer.moc"
