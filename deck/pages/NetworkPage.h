// The network's side: the framework link, the user's session with its radios, and the interface records.
#pragma once

#include <QWidget>

namespace orvelle {
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class NetworkPage : public QWidget {
public:
    // The network is there.
    explicit NetworkPage(const FarSides& sides);
};

}  // namespace orvelle::deck
