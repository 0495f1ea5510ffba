#pragma once

#include "BaseMainPage.h"

class QVBoxLayout;

namespace QMMusic {

// The window of a note finder: the menu bar on top of the finder.
class InstrumentMainPage : public BaseMainPage
{
    Q_OBJECT
    Q_DISABLE_COPY(InstrumentMainPage)

public:
    // The page's object name is its class name.
    explicit InstrumentMainPage(const QString& objectName, QWidget* parent = nullptr);

protected:
    // Puts the finder below the menu bar; called once by the constructor of
    // the instrument's page.
    void setFinder(QWidget* finder);

private:
    QVBoxLayout* m_layout = nullptr;
};

} // namespace QMMusic
