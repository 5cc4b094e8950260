#include "deck/pages/NetworkPage.h"

#include <QVBoxLayout>

#include "adapters/embedded/Tessaly.h"
#include "deck/pages/LinkBox.h"
#include "deck/pages/RadioBox.h"
#include "deck/pages/RecordsBox.h"
#include "deck/pages/SessionBox.h"

namespace orvelle::deck {

NetworkPage::NetworkPage(EmbeddedTessaly& tessaly) {
    setObjectName("NetworkPage");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SectionGap);
    column->addWidget(new LinkBox("Network", "Network", "&Network link", FarSideOf(tessaly)));
    column->addWidget(new SessionBox(tessaly));
    column->addWidget(new RadioBox(tessaly));
    column->addWidget(new RecordsBox(tessaly), 1);
}

}  // namespace orvelle::deck
