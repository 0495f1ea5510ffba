#include "ChordView.h"

#include "App.h"
#include "ChordPhotoView.h"
#include "ChordStandardView.h"
#include "ChordTabView.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QStyle>

namespace QMMusic {

ChordView::ChordView(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("ChordView"));
    setMinimumSize(150, 150);
    const QMWidgets::App* app = QMWidgets::App::theApp();
    const bool pocket = app && app->isPocketDevice();

    m_standardView = new ChordStandardView;
    m_tabView = new ChordTabView;
    m_photoView = new ChordPhotoView;
    m_instrumentLabel = new QFrame;
    m_instrumentLabel->setFixedSize(40, 105);
    m_instrumentLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* playButton = new QPushButton;
    playButton->setObjectName(QStringLiteral("PlayButton"));
    connect(playButton, &QPushButton::clicked, this, &ChordView::play);

    auto* optionsFrame = new QFrame;
    optionsFrame->setObjectName(QStringLiteral("ViewOptionsFrame"));
    optionsFrame->setMaximumWidth(pocket ? 56 : 64);
    auto* options = new QVBoxLayout(optionsFrame);
    if (pocket) {
        options->setContentsMargins(QMargins() + 2);
        options->setSpacing(2);
    }
    options->addWidget(playButton, 0, Qt::AlignCenter);
    options->addWidget(m_instrumentLabel);
    options->addStretch(1);

    auto* views = new QVBoxLayout;
    views->addWidget(m_standardView);
    views->addWidget(m_tabView);

    auto* box = new QHBoxLayout(this);
    if (pocket) {
        box->setContentsMargins(QMargins() + 1);
        box->setSpacing(1);
    }
    box->addWidget(optionsFrame);
    box->addLayout(views);
    box->addWidget(m_photoView);
}

void ChordView::setChordTabAndName(int chord, const QVector<int>& tab, const QString& name)
{
    m_standardView->setChordTabAndName(chord, tab, name);
    m_tabView->setChordTabAndName(chord, tab, name);
    m_photoView->setChordTabAndName(chord, tab, name);
}

void ChordView::setInstrumentName(const QString& key)
{
    m_instrumentName = key;
    m_standardView->setInstrumentName(key);
    m_tabView->setInstrumentName(key);
    m_photoView->setInstrumentName(key);
    m_instrumentLabel->setObjectName(QStringLiteral("InstrumentLabel_") + key);
    m_instrumentLabel->setFixedSize(40, 105);
    // The style sheet picks the label's picture by its object name.
    m_instrumentLabel->style()->unpolish(m_instrumentLabel);
    m_instrumentLabel->style()->polish(m_instrumentLabel);
}

} // namespace QMMusic
