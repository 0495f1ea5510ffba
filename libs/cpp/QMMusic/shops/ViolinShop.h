#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the violin page.
class ViolinShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(ViolinShop)

public:
    explicit ViolinShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
