// One of the two links, from the far side: the switch, what the panel knows of it and which server it uses; where the
// link is played, also reports of servers seen on the network.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"
#include "platform/sides/LinkSide.h"

class QCheckBox;
class QLineEdit;

namespace orvelle::deck {

class Readout;
class SignalLight;

class LinkBox : public Section {
public:
    // The names of the box and its fields begin with `name`.
    LinkBox(const QString& name, const QString& title, const QString& switchLabel, LinkSide& linkSide);

private:
    void AddServers(const QString& name, const QString& title);
    void SeeServer();
    void ShowState();

    LinkSide& link;
    PlayedLinkSide* const played;  // null where the link is real: then it has no servers' row
    QCheckBox* up;
    SignalLight* state;
    QLineEdit* seen = nullptr;
    Readout* allSeen = nullptr;
    Ticket watch;
};

}  // namespace orvelle::deck
