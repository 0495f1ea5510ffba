#pragma once

#include <QFrame>

namespace QMWidgets {

class PromoMenuBar;

// Base of a top-level page that carries the promo menu bar; the derived
// page places the bar in its layout.
class PromoMainPage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PromoMainPage)

public:
    explicit PromoMainPage(QWidget* parent = nullptr);
    ~PromoMainPage() override;

    PromoMenuBar* promoMenuBar() const;

private:
    PromoMenuBar* m_promoMenuBar = nullptr;
};

} // namespace QMWidgets
