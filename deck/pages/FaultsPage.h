// Delays, failures and oddities on demand, for each far side that is there.
#pragma once

#include <QWidget>

namespace orvelle {
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class FaultsPage : public QWidget {
public:
    explicit FaultsPage(const FarSides& sides);
};

}  // namespace orvelle::deck
