#include "MetronomeControls.h"

#include "App.h"

#include <QAction>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace QMMusic {

namespace {

// The tempo names and the range of each, in beats per minute.
const struct
{
    const char* name;
    const char* range;
    int lowest;
    int highest;
} kTempos[6] = {
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Largo"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "38-56"), 38, 56 },
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Adagio"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "57-70"), 57, 70 },
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Andante"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "71-96"), 71, 96 },
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Moderato"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "97-108"), 97, 108 },
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Allegro"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "109-168"), 109, 168 },
    { QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "Presto"),
        QT_TRANSLATE_NOOP("QMMusic::MetronomeControls", "169-208"), 169, 208 },
};

QPushButton* flatButton(const QString& objectName)
{
    auto* button = new QPushButton;
    button->setObjectName(objectName);
    button->setFlat(true);
    return button;
}

} // namespace

MetronomeControls::MetronomeControls(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("MetronomeControls"));

    m_visibleTickButton = flatButton(QStringLiteral("VisibleTickButton"));
    m_visibleTickButton->setCheckable(true);
    m_visibleTickButton->setToolTip(tr("Visible Tick"));
    m_audibleTickButton = flatButton(QStringLiteral("AudiableTickButton"));
    m_audibleTickButton->setCheckable(true);
    m_audibleTickButton->setToolTip(tr("Audiable Tick"));

    m_tempoList = new QTreeWidget;
    m_tempoList->setColumnCount(2);
    m_tempoList->setHeaderLabels({ tr("Name"), tr("Range") });
    m_tempoList->setHeaderHidden(true);
    m_tempoList->setAttribute(Qt::WA_MacShowFocusRect, false);
    m_tempoList->setSortingEnabled(false);
    m_tempoList->setRootIsDecorated(false);
    m_tempoList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tempoList->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int row = 0; row < 6; ++row) {
        m_items[row] = new QTreeWidgetItem(m_tempoList, { tr(kTempos[row].name), tr(kTempos[row].range) });
    }
    const QMWidgets::App* app = QMWidgets::App::theApp();
    m_tempoList->setColumnWidth(0, app && app->isPocketDevice() ? 65 : 115);
    m_tempoList->setColumnWidth(1, 30);

    m_beatsCombo = flatButton(QStringLiteral("BeatCombo"));
    m_beatsCombo->setText(QStringLiteral("4"));
    auto* beatsMenu = new QMenu(m_beatsCombo);
    // One beat to the bar is left out: it would ring the bell on every tick.
    for (int count : { 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 }) {
        QAction* action = beatsMenu->addAction(QString::number(count));
        connect(action, &QAction::triggered, this, &MetronomeControls::slotBeatsCountChanged);
    }
    m_beatsCombo->setMenu(beatsMenu);
    m_beatButton = flatButton(QStringLiteral("BeatButton"));

    m_tempoLabel = new QLabel(QStringLiteral("38"));
    m_tempoLabel->setObjectName(QStringLiteral("TempoLabel"));
    m_tempoLabel->setAlignment(Qt::AlignCenter);
    m_tempoUpButton = flatButton(QStringLiteral("TempoIncButton"));
    m_tempoDownButton = flatButton(QStringLiteral("TempoDecButton"));

    auto* tempoRow = new QHBoxLayout;
    tempoRow->setContentsMargins(0, 0, 0, 0);
    tempoRow->setSpacing(0);
    tempoRow->addStretch();
    tempoRow->addWidget(m_tempoDownButton);
    tempoRow->addWidget(m_tempoLabel);
    tempoRow->addWidget(m_tempoUpButton);
    tempoRow->addStretch();

    auto* listRow = new QHBoxLayout;
    listRow->setContentsMargins(0, 0, 0, 0);
    listRow->setSpacing(0);
    listRow->addStretch();
    listRow->addWidget(m_tempoList);
    listRow->addStretch();

    auto* buttonRow = new QHBoxLayout;
    buttonRow->setContentsMargins(0, 0, 0, 0);
    buttonRow->setSpacing(0);
    buttonRow->addSpacing(5);
    buttonRow->addWidget(m_visibleTickButton);
    buttonRow->addSpacing(5);
    buttonRow->addWidget(m_audibleTickButton);
    buttonRow->addSpacing(5);
    buttonRow->addWidget(m_beatButton);
    buttonRow->addWidget(m_beatsCombo);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(tempoRow);
    layout->addLayout(listRow);
    layout->addLayout(buttonRow);

    m_tempoList->setCurrentItem(m_items[0]);
    connect(m_tempoList, &QTreeWidget::currentItemChanged, this, &MetronomeControls::slotCurrentItemChanged);
    connect(m_tempoUpButton, &QPushButton::clicked, this, &MetronomeControls::slotTempoInc);
    connect(m_tempoDownButton, &QPushButton::clicked, this, &MetronomeControls::slotTempoDec);
    connect(m_visibleTickButton, &QPushButton::toggled, this, &MetronomeControls::visibleTickChanged);
    connect(m_audibleTickButton, &QPushButton::toggled, this, &MetronomeControls::audibleTickChanged);
}

int MetronomeControls::interval() const
{
    bool ok = false;
    const int tempo = m_tempoLabel->text().toInt(&ok);
    return ok ? tempo : 1000;
}

void MetronomeControls::setInterval(int tempo)
{
    m_tempoLabel->setText(QString::number(tempo));
    emit intervalChanged(tempo);
}

int MetronomeControls::beatsCount() const
{
    return m_beatsCount;
}

void MetronomeControls::setSelectListItem(int tempo)
{
    for (int row = 0; row < 6; ++row) {
        if (tempo >= kTempos[row].lowest && tempo <= kTempos[row].highest)
            m_tempoList->setCurrentItem(m_items[row]);
    }
}

QTreeWidget* MetronomeControls::tempoList() const
{
    return m_tempoList;
}

QPushButton* MetronomeControls::beatsCombo() const
{
    return m_beatsCombo;
}

void MetronomeControls::slotBeatsCountChanged()
{
    const auto* action = qobject_cast<QAction*>(sender());
    if (!action)
        return;
    bool ok = false;
    const int count = action->text().toInt(&ok);
    if (!ok)
        return;
    m_beatsCombo->setText(action->text());
    m_beatsCount = count;
    emit beatsCountChanged(count);
}

void MetronomeControls::slotTempoInc()
{
    bool ok = false;
    const int tempo = m_tempoLabel->text().toInt(&ok);
    if (!ok)
        return;
    const int next = qMin(tempo + 1, FastestTempo);
    setInterval(next);
    // Going up lands on a row's lowest tempo, which choosing the row gives too.
    setSelectListItem(next);
}

void MetronomeControls::slotTempoDec()
{
    bool ok = false;
    const int tempo = m_tempoLabel->text().toInt(&ok);
    const int next = qMax(tempo - 1, SlowestTempo);
    setInterval(next);
    // Going down lands on a row's highest tempo: choosing the row would move
    // it to the lowest, so the list keeps quiet.
    const QSignalBlocker blocker(m_tempoList);
    setSelectListItem(next);
}

void MetronomeControls::slotCurrentItemChanged()
{
    for (int row = 0; row < 6; ++row) {
        if (m_tempoList->currentItem() == m_items[row])
            setInterval(kTempos[row].lowest);
    }
}

} // namespace QMMusic
