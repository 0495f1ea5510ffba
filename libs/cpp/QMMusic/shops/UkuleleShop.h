#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the ukulele page.
class UkuleleShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(UkuleleShop)

public:
    explicit UkuleleShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
