#include "deck/pages/FaultsPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "adapters/embedded/SetUp.h"
#include "deck/pages/ComputerBox.h"
#include "deck/pages/DelaysBox.h"
#include "deck/pages/MixersBox.h"
#include "deck/pages/RefusalsBox.h"
#include "deck/pages/TeamSpeakBox.h"

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
    row->setSpacing(3 * Unit);
    row->addLayout(ColumnOf({new DelaysBox(setUp), new RefusalsBox(setUp), new ComputerBox(setUp.Velmarc)}), 1);
    row->addLayout(
        ColumnOf({new TeamSpeakBox(setUp.TSRemote), new MixersBox(setUp.VolumeControl, setUp.VolumeControlHP)}), 1);
}

}  // namespace orvelle::deck
