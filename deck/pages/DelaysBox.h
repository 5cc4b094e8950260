// How long the links and the mixers take to bring their events to the panel, milliseconds.
#pragma once

#include "deck/fields/Section.h"

namespace orvelle {
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class DelaysBox : public Section {
public:
    explicit DelaysBox(const FarSides& sides);
};

}  // namespace orvelle::deck
