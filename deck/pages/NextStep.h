// What somebody who is new here may try next, in one line at the head of the deck's first page. It follows what is
// there: links and session, the voice duties that the panel holds, what the radios are tuned to, and who talks.
#pragma once

#include <QLabel>
#include <vector>

#include "platform/Ticket.h"
#include "platform/sides/FarSides.h"

namespace orvelle::deck {

class NextStep : public QLabel {
public:
    // The sides outlive it; those of the simulator and the network are there.
    explicit NextStep(const FarSides& farSides);

private:
    void ShowState();

    const FarSides sides;
    std::vector<Ticket> watches;
};

}  // namespace orvelle::deck
