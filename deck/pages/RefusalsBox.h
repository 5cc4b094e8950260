// What the network refuses the panel, records that no panel makes, and the sentence by which the settings store tells
// the user of trouble.
#pragma once

#include "deck/fields/Section.h"

namespace orvelle {
class Notices;
class PlayedNetworkSide;
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class RefusalsBox : public Section {
public:
    explicit RefusalsBox(const FarSides& sides);

private:
    void AddNetwork(PlayedNetworkSide& network);
    void AddNotices(Notices& notices);
};

}  // namespace orvelle::deck
