#include "ChordsMainPage.h"

#include "App.h"
#include "AudioPoolPlayer.h"
#include "ChordView.h"
#include "ChordsButtonsPanel.h"
#include "ChordsStyleSheet.h"
#include "PromoMenuBar.h"
#include "Transposer.h"

#include <QApplication>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

QString resourcePath()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app ? app->bundleResourcePath() : QString();
}

} // namespace

ChordsMainPage::ChordsMainPage(const QString& key, QWidget* parent)
    : BaseMainPage(parent)
    , m_book(ChordTable::forKey(key), resourcePath())
    , m_resourcePath(resourcePath())
    , m_key(key)
{
    setObjectName(QStringLiteral("MainPage"));
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);
    setMinimumSize(400, 600);

    m_chordsPanel = new ChordsButtonsPanel;
    m_chordView = new ChordView;
    m_transposer = new Transposer;
    m_transposer->setChordsButtonsPanel(m_chordsPanel);
    connect(m_chordsPanel, &ChordsButtonsPanel::chordChanged, this, &ChordsMainPage::slotSetChordAndName);
    connect(m_chordView, &ChordView::play, this, &ChordsMainPage::slotPlay);
    connect(m_transposer, &Transposer::play, this, &ChordsMainPage::slotPlay);

    const QMWidgets::App* app = QMWidgets::App::theApp();
    if (app && app->isPocketDevice()) {
        m_chordsPanel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        m_chordView->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(promoMenuBar());
    layout->addWidget(m_chordsPanel);
    layout->addWidget(m_chordView, 1);
    layout->addWidget(m_transposer);
}

void ChordsMainPage::buildChords()
{
    setInstrumentName(m_key);
    setDelay(ChordTable::forKey(m_key).delay);
    initChords();
    m_chordView->setChordTabAndName(0, m_book.chordTab(0), QStringLiteral("A"));
}

void ChordsMainPage::initChords()
{
    m_book.initChords();
}

void ChordsMainPage::setCurrentChord(const QString& name)
{
    m_chordsPanel->setChord(name);
}

QString ChordsMainPage::currentChord() const
{
    return m_chordsPanel->currentChord();
}

void ChordsMainPage::setInstrumentName(const QString& key)
{
    m_chordView->setInstrumentName(key);
}

int ChordsMainPage::currentTransposerChordIndex() const
{
    return m_transposer->currentChordIndex();
}

void ChordsMainPage::setCurrentTransposerChordIndex(int index)
{
    m_transposer->setCurrentChordIndex(index);
}

QStringList ChordsMainPage::currentTransposerChords() const
{
    return m_transposer->currentChords();
}

void ChordsMainPage::setCurrentTransposerChords(const QStringList& chords)
{
    m_transposer->setCurrentChords(chords);
}

void ChordsMainPage::updateTransposerState()
{
    m_transposer->updateState();
}

void ChordsMainPage::recreateFavoritesMenu()
{
    m_transposer->recreateFavoritesMenu();
}

void ChordsMainPage::setDelay(int delay)
{
    m_delay = delay;
}

void ChordsMainPage::createSound(const QString&) { }

void ChordsMainPage::applyStyle()
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    if (!app)
        return;
    // Added to the frame's rules, so that dialogs keep the program's looks.
    const QString sheet = ChordsStyleSheet::text(app->isPocketDevice(), app->smallestDimention());
    if (!qApp->styleSheet().contains(sheet))
        qApp->setStyleSheet(qApp->styleSheet() + sheet);
}

int ChordsMainPage::currentChordIndex() const
{
    return m_currentChord;
}

const ChordBook& ChordsMainPage::book() const
{
    return m_book;
}

ChordsButtonsPanel* ChordsMainPage::chordsPanel() const
{
    return m_chordsPanel;
}

ChordView* ChordsMainPage::chordView() const
{
    return m_chordView;
}

Transposer* ChordsMainPage::transposer() const
{
    return m_transposer;
}

void ChordsMainPage::slotPlay()
{
    slotPlayChord(m_book.chordNotes(m_currentChord));
}

void ChordsMainPage::slotPlayChord(const QStringList& notes)
{
    // Every string at once, each on a player of its own: no strumming.
    QStringList played;
    for (const QString& note : notes) {
        if (note.isEmpty())
            continue;
        QMMultiMedia::AudioPoolPlayer::instance()->play(note);
        played.append(note);
    }
    emit chordPlayed(played);
}

void ChordsMainPage::slotSetChordAndName(int chord, const QString& name)
{
    m_currentChord = chord;
    m_chordView->setChordTabAndName(chord, m_book.chordTab(chord), name);
}

} // namespace QMMusic
