#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the mandolin page.
class MandolinShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(MandolinShop)

public:
    explicit MandolinShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
