#pragma once

#include "MusicShopBase.h"

namespace QMMusic {

// The shop links of the piano page.
class PianoShop : public MusicShopBase
{
    Q_OBJECT
    Q_DISABLE_COPY(PianoShop)

public:
    explicit PianoShop(QObject* parent = nullptr, QLocale::Country country = QLocale::system().country());
};

} // namespace QMMusic
