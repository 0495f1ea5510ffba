#include "Transposer.h"

#include "App.h"
#include "ChordTransposition.h"
#include "ChordsButtonsPanel.h"
#include "ChordsTabBar.h"
#include "FavoritesDeleteDlg.h"
#include "MMessageBox.h"
#include "TranslatedTexts.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

const QLatin1Char kLineFeed('\n');

QMWidgets::App* app()
{
    return QMWidgets::App::theApp();
}

QPushButton* makeButton(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    return button;
}

} // namespace

const QString& Transposer::exampleFavorite()
{
    static const QString example = QStringLiteral("Ivo Marlen - Et Si Tu N'existais Pas:")
        + QStringList({ QStringLiteral("B\nm"), QStringLiteral("E\nm"), QStringLiteral("F #\n7"),
                          QStringLiteral("A\n7"), QStringLiteral("D\n"), QStringLiteral("D\nm"), QStringLiteral("G\nm"),
                          QStringLiteral("A\n7"), QStringLiteral("C\n7"), QStringLiteral("F\n") })
              .join(QLatin1Char(','));
    return example;
}

Transposer::Transposer(QWidget* parent)
    : QFrame(parent)
    , m_tabBar(new ChordsTabBar)
    , m_favoritesMenu(new QMenu(this))
    , m_deleteDialog(new FavoritesDeleteDlg)
{
    setObjectName(QStringLiteral("Transposer"));

    m_tabBar->setMovable(true);
    m_tabBar->setUsesScrollButtons(true);
    m_favoritesMenu->setObjectName(QStringLiteral("FavoritesMenu"));

    const bool pocket = app() && app()->isPocketDevice();
    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());
    auto* addButton = makeButton(QStringLiteral("+"), QStringLiteral("PushButtonAdd"), this);
    texts->setToolTip(addButton, QT_TR_NOOP("Add chord"));
    m_removeButton = makeButton(QStringLiteral("-"), QStringLiteral("PushButtonRemove"), this);
    texts->setToolTip(m_removeButton, QT_TR_NOOP("Remove selected chord"));
    addButton->setFixedSize(40, 40);
    m_removeButton->setFixedSize(40, 40);
    m_soundButton = makeButton(QString(), QStringLiteral("TransposerButton"), this);
    m_soundButton->setCheckable(true);
    m_transposeButton = makeButton(QString(), QStringLiteral("TransposerButton"), this);
    texts->setText(m_transposeButton, QT_TR_NOOP("Transpose"));
    auto* favoritesButton = makeButton(QStringLiteral("Favorites"), QStringLiteral("TransposerButton"), this);
    for (QPushButton* button : { m_soundButton, m_transposeButton, favoritesButton })
        button->setFixedHeight(40);

    auto* transposeMenu = new QMenu(m_transposeButton);
    transposeMenu->setObjectName(QStringLiteral("TransposerMenu"));
    const QStringList steps = ChordTransposition::menuTexts();
    for (int i = 0; i < steps.size(); ++i) {
        transposeMenu->addAction(
            steps.at(i), this, i < steps.size() / 2 ? &Transposer::slotTransposeD : &Transposer::slotTransposeB);
    }
    m_transposeButton->setMenu(transposeMenu);
    favoritesButton->setMenu(m_favoritesMenu);

    connect(addButton, &QPushButton::clicked, this, &Transposer::slotAddChord);
    connect(m_removeButton, &QPushButton::clicked, this, &Transposer::slotRemoveChord);
    connect(m_soundButton, &QPushButton::clicked, this, &Transposer::slotSoundClicked);
    connect(m_tabBar, &ChordsTabBar::tabClicked, this, &Transposer::slotTabClicked);
    connect(m_tabBar, &ChordsTabBar::countChanged, this, &Transposer::slotChordsCountChanged);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(3);
    buttons->setContentsMargins(1, 1, 1, 1);
    buttons->addWidget(addButton);
    buttons->addSpacing(4);
    buttons->addWidget(m_removeButton);
    buttons->addSpacing(4);
    buttons->addWidget(m_soundButton);
    buttons->addStretch();
    buttons->addWidget(m_transposeButton);
    buttons->addStretch();
    buttons->addWidget(favoritesButton);

    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("TransposerFrame"));
    auto* rows = new QVBoxLayout(frame);
    const int gap = pocket ? 1 : 3;
    rows->setContentsMargins(gap, gap, gap, gap);
    rows->setSpacing(gap);
    rows->addLayout(buttons);
    rows->addWidget(m_tabBar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);

    recreateFavoritesMenu();
    updateState();
    slotChordsCountChanged(0);
}

Transposer::~Transposer()
{
    // Made without a parent, so that it opens as a window of its own.
    delete m_deleteDialog;
}

void Transposer::setChordsButtonsPanel(ChordsButtonsPanel* panel)
{
    m_chordsPanel = panel;
}

QStringList Transposer::currentChords() const
{
    QStringList chords;
    for (int i = 0; i < m_tabBar->count(); ++i)
        chords.append(m_tabBar->tabText(i));
    return chords;
}

void Transposer::setCurrentChords(const QStringList& chords)
{
    while (m_tabBar->count() > 0)
        m_tabBar->removeTab(0);
    for (const QString& chord : chords)
        m_tabBar->addTab(chord);
}

int Transposer::currentChordIndex() const
{
    return m_tabBar->currentIndex();
}

void Transposer::setCurrentChordIndex(int index)
{
    m_tabBar->setCurrentIndex(index);
}

void Transposer::updateState()
{
    m_soundButton->setChecked(app() && app()->settingsValue(QStringLiteral("TransposerSoundOn"), true).toBool());
    showSoundState();
}

void Transposer::showSoundState()
{
    m_soundButton->setText(m_soundButton->isChecked() ? tr("Sound On") : tr("Sound Off"));
}

void Transposer::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showSoundState();
    QFrame::changeEvent(event);
}

ChordsTabBar* Transposer::tabBar() const
{
    return m_tabBar;
}

QMenu* Transposer::transposeMenu() const
{
    return m_transposeButton->menu();
}

QMenu* Transposer::favoritesMenu() const
{
    return m_favoritesMenu;
}

QPushButton* Transposer::soundButton() const
{
    return m_soundButton;
}

FavoritesDeleteDlg* Transposer::deleteDialog() const
{
    return m_deleteDialog;
}

void Transposer::slotChordsCountChanged(int count)
{
    const bool any = count != 0;
    m_transposeButton->setEnabled(any);
    m_removeButton->setEnabled(any);
    m_saveAction->setEnabled(any);
    m_soundButton->setEnabled(any);
}

void Transposer::slotAddChord()
{
    if (m_chordsPanel)
        m_tabBar->addTab(m_chordsPanel->currentChordPart1() + kLineFeed + m_chordsPanel->currentChordPart2());
}

void Transposer::slotRemoveChord()
{
    m_tabBar->removeTab(m_tabBar->currentIndex());
}

void Transposer::slotNewFavorite()
{
    while (m_tabBar->count() > 0)
        m_tabBar->removeTab(0);
}

void Transposer::slotTabClicked()
{
    const QString name = m_tabBar->tabText(m_tabBar->currentIndex()).remove(kLineFeed);
    if (m_chordsPanel)
        m_chordsPanel->setChord(name);
    if (m_soundButton->isChecked())
        emit play();
}

void Transposer::slotSoundClicked()
{
    showSoundState();
    if (app())
        app()->setSettingsValue(QStringLiteral("TransposerSoundOn"), m_soundButton->isChecked());
}

void Transposer::slotTransposeD()
{
    transpose(qobject_cast<QAction*>(sender()), true);
}

void Transposer::slotTransposeB()
{
    transpose(qobject_cast<QAction*>(sender()), false);
}

void Transposer::transpose(QAction* action, bool sharp)
{
    if (!action || !m_chordsPanel)
        return;
    const int steps = ChordTransposition::steps(action->text(), sharp);
    if (steps < 0)
        return;
    // The tab texts are the song: each is moved on its own, by its own scale.
    for (int i = 0; i < m_tabBar->count(); ++i)
        m_tabBar->setTabText(i, ChordTransposition::transpose(m_tabBar->tabText(i), steps, sharp));
}

void Transposer::readFavorites()
{
    m_favorites.clear();
    if (!app())
        return;
    const int count = app()->settingsValue(QStringLiteral("FavoritesCount"), 1).toInt();
    for (int i = 0; i < count; ++i) {
        const QStringList parts = app()
                                      ->settingsValue(QStringLiteral("Favorite%1").arg(i), exampleFavorite())
                                      .toString()
                                      .split(QLatin1Char(':'), Qt::KeepEmptyParts);
        m_favorites.insert(parts.first(), parts.last().split(QLatin1Char(',')));
    }
}

void Transposer::saveFavorites()
{
    if (!app())
        return;
    app()->setSettingsValue(QStringLiteral("FavoritesCount"), m_favorites.size());
    int i = 0;
    for (auto it = m_favorites.cbegin(); it != m_favorites.cend(); ++it, ++i) {
        app()->setSettingsValue(
            QStringLiteral("Favorite%1").arg(i), it.key() + QLatin1Char(':') + it.value().join(QLatin1Char(',')));
    }
}

void Transposer::recreateFavoritesMenu()
{
    readFavorites();
    m_favoritesMenu->clear();
    m_favoritesMenu->addAction(QIcon(QStringLiteral(":/new.png")), tr("&New"), this, &Transposer::slotNewFavorite);
    m_saveAction = m_favoritesMenu->addAction(
        QIcon(QStringLiteral(":/save.png")), tr("&Save..."), this, &Transposer::slotSaveFavorite);
    m_saveAction->setEnabled(m_tabBar->count() != 0);
    m_favoritesMenu->addAction(
        QIcon(QStringLiteral(":/delete.png")), tr("&Delete..."), this, &Transposer::slotDeleteFavorite);
    m_deleteDialog->clearItems();
    for (auto it = m_favorites.cbegin(); it != m_favorites.cend(); ++it)
        m_deleteDialog->addItem(it.key());
    m_favoritesMenu->addSeparator();
    for (auto it = m_favorites.cbegin(); it != m_favorites.cend(); ++it)
        m_favoritesMenu->addAction(it.key(), this, &Transposer::slotLoadFavorite);
}

void Transposer::slotSaveFavorite()
{
    bool ok = false;
    const QString name
        = QInputDialog::getText(this, tr("Save Favorite"), tr("Favorite's Name:"), QLineEdit::Normal, QString(), &ok);
    if (!ok)
        return;
    if (name.isEmpty()) {
        QMWidgets::MMessageBox::warning(
            this, tr("Warning"), tr("Can not create the favorite without name"), QMessageBox::Ok);
        return;
    }
    m_favorites.insert(name, currentChords());
    saveFavorites();
    recreateFavoritesMenu();
}

void Transposer::slotLoadFavorite()
{
    auto* action = qobject_cast<QAction*>(sender());
    if (action && m_favorites.contains(action->text()))
        setCurrentChords(m_favorites.value(action->text()));
}

void Transposer::slotDeleteFavorite()
{
    if (m_deleteDialog->exec() != QDialog::Accepted || m_deleteDialog->item().isEmpty())
        return;
    const QString name = m_deleteDialog->item();
    QMWidgets::MMessageBox question(QMWidgets::MMessageBox::Warning, tr("Warning"),
        tr("Remove the favorite:\n \"") + name + tr("\"?"), QMessageBox::Yes | QMessageBox::No, this);
    if (question.exec() != QMessageBox::Yes)
        return;
    m_favorites.remove(name);
    saveFavorites();
    recreateFavoritesMenu();
}

} // namespace QMMusic
