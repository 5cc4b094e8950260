// Delays, failures and oddities on demand, for each side of the set-up.
#pragma once

#include <QWidget>

namespace orvelle {
class EmbeddedSetUp;
}  // namespace orvelle

namespace orvelle::deck {

class FaultsPage : public QWidget {
public:
    explicit FaultsPage(EmbeddedSetUp& setUp);
};

}  // namespace orvelle::deck
