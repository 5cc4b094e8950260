// What the panel is told of the simulator's computer.
#pragma once

#include <memory>

#include "deck/fields/Section.h"

namespace orvelle {
class EmbeddedVelmarc;
}  // namespace orvelle

namespace orvelle::deck {

class TextField;

class ComputerBox : public Section {
public:
    explicit ComputerBox(EmbeddedVelmarc& simulator);

private:
    void ShowState();

    EmbeddedVelmarc& velmarc;
    TextField* address;
    TextField* name;
    TextField* desktop;
    std::shared_ptr<void> watch;
};

}  // namespace orvelle::deck
