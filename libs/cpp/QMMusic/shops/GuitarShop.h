#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the guitar page.
class GuitarShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(GuitarShop)

public:
    explicit GuitarShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
