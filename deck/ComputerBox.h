// What the panel is told of the simulator's computer.
#pragma once

#include <memory>

#include "deck/Section.h"

class QLineEdit;

namespace orvelle {
class EmbeddedVelmarc;
}  // namespace orvelle

namespace orvelle::deck {

class ComputerBox : public Section {
public:
    explicit ComputerBox(EmbeddedVelmarc& simulator);

private:
    void ShowState();

    EmbeddedVelmarc& velmarc;
    QLineEdit* address;
    QLineEdit* name;
    QLineEdit* desktop;
    std::shared_ptr<void> watch;
};

}  // namespace orvelle::deck
