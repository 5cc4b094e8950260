// One of the two links, from the far side: the switch, what the panel knows of it and which server it uses, and reports
// of servers seen on the network.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"
#include "platform/sides/LinkSide.h"

class QCheckBox;
class QLineEdit;

namespace orvelle {
class LinkSide;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;
class SignalLight;

class LinkBox : public Section {
public:
    // The names of the box and its fields begin with `name`.
    LinkBox(const QString& name, const QString& title, const QString& switchLabel, LinkSide& linkSide);

private:
    void SeeServer();
    void ShowState();

    LinkSide& link;
    QCheckBox* up;
    SignalLight* state;
    QLineEdit* seen;
    Readout* allSeen;
    Ticket watch;
};

}  // namespace orvelle::deck
