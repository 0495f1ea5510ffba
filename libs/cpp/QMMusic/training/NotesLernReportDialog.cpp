#include "NotesLernReportDialog.h"

#include "NotesLernBar.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace QMMusic {

NotesLernReportDialog::NotesLernReportDialog(const QMap<QString, QPair<int, int>>& report, QWidget* parent)
    : QDialog(parent)
{
    setMinimumWidth(300);

    auto* okButton = new QPushButton(tr("&Ok"), this);
    okButton->setObjectName(QStringLiteral("PushButton"));
    okButton->setFixedHeight(32);
    connect(okButton, &QPushButton::clicked, this, &QDialog::accept);

    // Each entry gets a grid of its own, so the columns of different rows
    // line up only as far as their contents do.
    auto* rows = new QVBoxLayout;
    int row = 0;
    for (auto entry = report.constBegin(); entry != report.constEnd(); ++entry, ++row) {
        auto* grid = new QGridLayout;
        rows->addLayout(grid);

        auto* bar = new NotesLernBar(this);
        bar->setMinimumWidth(175);
        bar->setRightCount(entry.value().first);
        bar->setWrongCount(entry.value().second);

        grid->addWidget(new QLabel(entry.key(), this), row, 0);
        grid->addWidget(bar, row, 1);
        grid->addWidget(new QLabel(QStringLiteral("<FONT COLOR='#00FF00'>") + QString::number(entry.value().first)
                                + QStringLiteral("</FONT>"),
                            this),
            row, 2);
        grid->addWidget(new QLabel(QStringLiteral("<FONT COLOR='#FF0000'>") + QString::number(entry.value().second)
                                + QStringLiteral("</FONT>"),
                            this),
            row, 3);
    }

    auto* layout = new QVBoxLayout;
    layout->addLayout(rows);
    if (report.isEmpty())
        layout->addWidget(new QLabel(tr("<CENTER><H2>No report data is available</H2></CENTER>"), this));
    layout->addWidget(okButton);
    setLayout(layout);
}

} // namespace QMMusic
