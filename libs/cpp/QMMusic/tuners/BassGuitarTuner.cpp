#include "BassGuitarTuner.h"

#include "BassShop.h"
#include "ModesPanel.h"
#include "TranslatedTexts.h"
#include "TuneButton.h"

#include <QMenu>
#include <QPushButton>

namespace QMMusic {

BassGuitarTuner::BassGuitarTuner(QWidget* parent)
    : TunerBasePage(parent)
{
    fill(":/BassGuitar.jpg",
        { { "B0", "bassguitar_%1_B0.mp3" }, { "E1", "bassguitar_%1_E1.mp3" }, { "A1", "bassguitar_%1_A1.mp3" },
            { "D2", "bassguitar_%1_D2.mp3" }, { "G2", "bassguitar_%1_G2.mp3" } },
        BassShop());
    button(0)->hide();

    QPushButton* modes = modesPanel()->modesButton();
    auto* menu = new QMenu(modes);
    auto* texts = new QMWidgets::TranslatedTexts(menu, staticMetaObject.className());
    texts->setText(menu->addAction(QString(), this, &BassGuitarTuner::slot5Strings), QT_TR_NOOP("5 Strings"));
    texts->setText(menu->addAction(QString(), this, &BassGuitarTuner::slot4Strings), QT_TR_NOOP("4 Strings"));
    modes->setMenu(menu);
    modes->show();
}

void BassGuitarTuner::slot5Strings()
{
    button(0)->show();
}

void BassGuitarTuner::slot4Strings()
{
    button(0)->hide();
}

} // namespace QMMusic
