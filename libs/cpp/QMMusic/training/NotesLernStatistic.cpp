#include "NotesLernStatistic.h"

#include "NotesLernBar.h"
#include "NotesLernReportDialog.h"
#include "TranslatedTexts.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace QMMusic {

NotesLernStatistic::NotesLernStatistic(QWidget* parent)
    : QFrame(parent)
{
    m_bar = new NotesLernBar(this);
    m_rightLabel = new QLabel(this);
    m_wrongLabel = new QLabel(this);
    m_reportButton = new QPushButton(this);
    (new QMWidgets::TranslatedTexts(this, staticMetaObject.className()))
        ->setText(m_reportButton, QT_TR_NOOP("Full Report"));
    m_reportButton->setObjectName(QStringLiteral("PushButton"));
    m_reportButton->setMinimumHeight(32);
    connect(m_reportButton, &QPushButton::clicked, this, &NotesLernStatistic::slotShowReport);

    auto* counts = new QHBoxLayout;
    counts->setContentsMargins(2, 2, 2, 2);
    counts->setSpacing(1);
    counts->addWidget(m_rightLabel);
    counts->addStretch(1);
    counts->addWidget(m_reportButton);
    counts->addStretch(1);
    counts->addWidget(m_wrongLabel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(1);
    layout->addStretch(1);
    layout->addLayout(counts);
    layout->addWidget(m_bar);

    updateInfo();
}

void NotesLernStatistic::updateInfo()
{
    // Fixed texts, not translated, with no blank after the colon.
    m_rightLabel->setText(QStringLiteral("<FONT COLOR='green'>Right:") + QString::number(m_bar->rightCount())
        + QStringLiteral("</FONT>"));
    m_wrongLabel->setText(
        QStringLiteral("<FONT COLOR='red'>Wrong:") + QString::number(m_bar->wrongCount()) + QStringLiteral("</FONT>"));
    m_bar->update();
}

void NotesLernStatistic::incWrong()
{
    m_bar->incWrong();
    updateInfo();
}

void NotesLernStatistic::incRight()
{
    m_bar->incRight();
    updateInfo();
}

int NotesLernStatistic::wrongCount() const
{
    return m_bar->wrongCount();
}

int NotesLernStatistic::rightCount() const
{
    return m_bar->rightCount();
}

void NotesLernStatistic::reset()
{
    m_bar->reset();
    m_report.clear();
    updateInfo();
}

void NotesLernStatistic::addToReport(const QString& key, const QPair<int, int>& result)
{
    auto entry = m_report.find(key);
    if (entry == m_report.end()) {
        m_report.insert(key, result);
        return;
    }
    entry->first += result.first;
    entry->second += result.second;
}

const QMap<QString, QPair<int, int>>& NotesLernStatistic::report() const
{
    return m_report;
}

NotesLernBar* NotesLernStatistic::bar() const
{
    return m_bar;
}

void NotesLernStatistic::slotShowReport()
{
    NotesLernReportDialog dialog(m_report, this);
    dialog.exec();
}

} // namespace QMMusic
