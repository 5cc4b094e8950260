#include "deck/NetworkPage.h"

#include <QVBoxLayout>

#include "deck/LinkBox.h"
#include "deck/RadioBox.h"
#include "deck/RecordsBox.h"
#include "deck/SessionBox.h"
#include "platform/embedded/Tessaly.h"

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
