// How long the links and the mixers take to bring their events to the panel, milliseconds.
#pragma once

#include "deck/fields/Section.h"

namespace orvelle {
class EmbeddedSetUp;
}  // namespace orvelle

namespace orvelle::deck {

class DelaysBox : public Section {
public:
    explicit DelaysBox(EmbeddedSetUp& setUp);
};

}  // namespace orvelle::deck
