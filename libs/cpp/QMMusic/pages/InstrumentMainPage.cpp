#include "InstrumentMainPage.h"

#include "PromoMenuBar.h"

#include <QVBoxLayout>

namespace QMMusic {

InstrumentMainPage::InstrumentMainPage(const QString& objectName, QWidget* parent)
    : BaseMainPage(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(objectName);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(promoMenuBar());
}

void InstrumentMainPage::setFinder(QWidget* finder)
{
    m_layout->addWidget(finder);
}

} // namespace QMMusic
