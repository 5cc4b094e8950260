#include "deck/pages/FaultsPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "deck/fields/PageHead.h"
#include "deck/pages/ComputerBox.h"
#include "deck/pages/DelaysBox.h"
#include "deck/pages/MixersBox.h"
#include "deck/pages/RefusalsBox.h"
#include "deck/pages/TeamSpeakBox.h"
#include "platform/sides/FarSides.h"

namespace orvelle::deck {

namespace {

// Of the sections that are there.
QVBoxLayout* ColumnOf(std::initializer_list<Section*> sections) {
    auto* column = new QVBoxLayout;
    column->setSpacing(SectionGap);
    for (Section* section : sections)
        if (section) column->addWidget(section);
    column->addStretch();
    return column;
}

}  // namespace

FaultsPage::FaultsPage(const FarSides& sides) {
    setObjectName("FaultsPage");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * Unit);
    row->addLayout(ColumnOf({new DelaysBox(sides), new RefusalsBox(sides),
                             sides.Simulator ? new ComputerBox(*sides.Simulator) : nullptr}),
                   1);
    row->addLayout(
        ColumnOf({sides.TeamSpeak ? new TeamSpeakBox(*sides.TeamSpeak) : nullptr,
                  sides.HeadsetMixer&& sides.SpeakersMixer ? new MixersBox(*sides.HeadsetMixer, *sides.SpeakersMixer)
                                                           : nullptr}),
        1);
    AddPageHead(*this, "How the panel takes it when something is slow, fails or is odd. A flight needs none of this.");
}

}  // namespace orvelle::deck
