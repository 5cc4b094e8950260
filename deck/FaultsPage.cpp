#include "deck/FaultsPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "deck/ComputerBox.h"
#include "deck/DelaysBox.h"
#include "deck/MixersBox.h"
#include "deck/RefusalsBox.h"
#include "deck/TeamSpeakBox.h"
#include "platform/embedded/SetUp.h"

namespace orvelle::deck {

namespace {

QVBoxLayout* ColumnOf(std::initializer_list<Section*> sections) {
    auto* column = new QVBoxLayout;
    column->setSpacing(SectionGap);
    for (Section* section : sections) column->addWidget(section);
    column->addStretch();
    return column;
}

}  // namespace

FaultsPage::FaultsPage(EmbeddedSetUp& setUp) {
    setObjectName("FaultsPage");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * DeckUnit);
    row->addLayout(ColumnOf({new DelaysBox(setUp), new RefusalsBox(setUp), new ComputerBox(setUp.Velmarc)}), 1);
    row->addLayout(
        ColumnOf({new TeamSpeakBox(setUp.TSRemote), new MixersBox(setUp.VolumeControl, setUp.VolumeControlHP)}), 1);
}

}  // namespace orvelle::deck
