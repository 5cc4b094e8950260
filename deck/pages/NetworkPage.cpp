#include "deck/pages/NetworkPage.h"

#include <QVBoxLayout>
#include <utility>

#include "deck/fields/Remark.h"
#include "deck/fields/TextField.h"
#include "deck/pages/LinkBox.h"
#include "deck/pages/RadioBox.h"
#include "deck/pages/RecordsBox.h"
#include "deck/pages/SessionBox.h"
#include "platform/sides/FarSides.h"

namespace orvelle::deck {

NetworkPage::NetworkPage(const FarSides& sides, ChannelLookUp lookUp)
    : ruler(new Remark("Ruler")),
      session(new SessionBox(*sides.Network)),
      radios(new RadioBox(*sides.Network, std::move(lookUp))) {
    setObjectName("NetworkPage");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SectionGap);
    if (sides.NetworkLink) column->addWidget(new LinkBox("Network", "Network", "&Network link", *sides.NetworkLink));
    column->addWidget(ruler);
    column->addWidget(session);
    column->addWidget(radios);
    column->addWidget(new RecordsBox(*sides.Network), 1);
}

void NetworkPage::ShowRuler(const QString& sentence) {
    // Told again at each change of a flight.
    if (std::exchange(ruled, sentence) == sentence) return;
    ruler->Show(sentence);
    for (QWidget* box : {session, radios}) {
        // What was half typed would be applied as its field loses the keys.
        if (!sentence.isEmpty())
            for (QLineEdit* edit : box->findChildren<QLineEdit*>())
                if (auto* field = dynamic_cast<TextField*>(edit)) field->TakeBack();
        box->setEnabled(sentence.isEmpty());
    }
}

}  // namespace orvelle::deck
