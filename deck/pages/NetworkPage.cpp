#include "deck/pages/NetworkPage.h"

#include <QVBoxLayout>

#include "deck/pages/LinkBox.h"
#include "deck/pages/RadioBox.h"
#include "deck/pages/RecordsBox.h"
#include "deck/pages/SessionBox.h"
#include "platform/sides/FarSides.h"

namespace orvelle::deck {

NetworkPage::NetworkPage(const FarSides& sides) {
    setObjectName("NetworkPage");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SectionGap);
    if (sides.NetworkLink) column->addWidget(new LinkBox("Network", "Network", "&Network link", *sides.NetworkLink));
    column->addWidget(new SessionBox(*sides.Network));
    column->addWidget(new RadioBox(*sides.Network));
    column->addWidget(new RecordsBox(*sides.Network), 1);
}

}  // namespace orvelle::deck
