// The user's session on the network: whether there is one, its status and the callsign.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class NetworkSide;
}  // namespace orvelle

namespace orvelle::deck {

class TextField;

class SessionBox : public Section {
public:
    explicit SessionBox(NetworkSide& framework);

private:
    void ShowState();

    NetworkSide& network;
    QCheckBox* open;
    QCheckBox* connected;
    TextField* callsign;
    Ticket watch;
};

}  // namespace orvelle::deck
