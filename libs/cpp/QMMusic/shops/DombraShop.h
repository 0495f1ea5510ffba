#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the dombra tuner.
class DombraShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(DombraShop)

public:
    explicit DombraShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
