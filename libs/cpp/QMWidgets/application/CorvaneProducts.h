#pragma once

namespace QMWidgets {

class PromoMenuBar;

// The maker's other products as the "More" menu lists them: four product
// pages, three more pages and two store entries, in three groups.
class CorvaneProducts
{
public:
    static void addTo(PromoMenuBar* bar);
};

} // namespace QMWidgets
