#include "TunersExplorer.h"

#include "TranslatedTexts.h"
#include "TunersCommonPanel.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

struct Tile
{
    const char* objectName;
    const char* label;
    void (TunersExplorer::*signal)();
};

// Column by column, top to bottom; the style sheet draws each button by its name.
const Tile kTiles[3][4] = {
    {
        { "GuitarButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Guitar</center>"),
            &TunersExplorer::showGuitar },
        { "BassGuitarButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>BassGuitar</center>"),
            &TunersExplorer::showBassGuitar },
        { "UkuleleButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Ukulele</center>"),
            &TunersExplorer::showUkulele },
        { "BanjoButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Banjo</center>"),
            &TunersExplorer::showBanjo },
    },
    {
        { "ViolinButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Violin</center>"),
            &TunersExplorer::showViolin },
        { "ViolaButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Viola</center>"),
            &TunersExplorer::showViola },
        { "CelloButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Cello</center>"),
            &TunersExplorer::showCello },
        { "DoubleBassButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>DoubleBass</center>"),
            &TunersExplorer::showDoubleBass },
    },
    {
        { "MandolinButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Mandolin</center>"),
            &TunersExplorer::showMandolin },
        { "BalalaikaButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Balalaika</center>"),
            &TunersExplorer::showBalalaika },
        { "DombraButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>Dombra</center>"),
            &TunersExplorer::showDombra },
        { "OtherAppsButton", QT_TRANSLATE_NOOP("QMMusic::TunersExplorer", "<center>More Apps</center>"),
            &TunersExplorer::showMore },
    },
};

} // namespace

TunersExplorer::TunersExplorer(QWidget* parent)
    : QFrame(parent)
    , m_commonPanel(new TunersCommonPanel(this))
    , m_group(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("TunersExplorer"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(m_commonPanel, &TunersCommonPanel::repeatModeChangedTo, this, &TunersExplorer::repeatModeChangedTo);

    auto* texts = new QMWidgets::TranslatedTexts(this, staticMetaObject.className());
    auto* grid = new QGridLayout;
    grid->setContentsMargins(15, 15, 15, 15);
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 4; ++row) {
            const Tile& tile = kTiles[column][row];
            auto* button = new QPushButton(this);
            button->setObjectName(QLatin1String(tile.objectName));
            button->setFlat(true);
            button->setFixedSize(92, 92);
            connect(button, &QPushButton::clicked, this, tile.signal);
            // The last tile opens the other programs and stays out of the group.
            if (tile.signal != &TunersExplorer::showMore) {
                button->setCheckable(true);
                m_group->addButton(button);
            }
            auto* label = new QLabel(this);
            texts->setText(label, tile.label);
            label->setObjectName(QStringLiteral("TunersExplorerLabel"));
            grid->addWidget(button, row * 2, column);
            grid->addWidget(label, row * 2 + 1, column);
        }
    }
    instrumentButton(QStringLiteral("GuitarButton"))->setChecked(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_commonPanel);
    layout->addStretch(1);
    layout->addLayout(grid);
}

TunersCommonPanel* TunersExplorer::commonPanel() const
{
    return m_commonPanel;
}

QButtonGroup* TunersExplorer::instrumentGroup() const
{
    return m_group;
}

QPushButton* TunersExplorer::instrumentButton(const QString& objectName) const
{
    return findChild<QPushButton*>(objectName);
}

} // namespace QMMusic
