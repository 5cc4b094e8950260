// One of the two links, from the far side: the switch, what the panel knows of it and which server it uses, and reports
// of servers seen on the network.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adapters/embedded/LinkState.h"
#include "adapters/shared/Changes.h"
#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;
class QLineEdit;

namespace orvelle::deck {

class Readout;
class SignalLight;

// What both links have alike.
struct FarSide {
    std::function<void(LinkState)> SetLink;
    std::function<LinkState()> Wanted;
    std::function<bool()> IsUp;
    std::function<std::string()> Server;
    std::function<void(const std::string&)> SeeServer;
    std::function<std::vector<std::string>()> ServersSeen;
    Changes& Changed;
};

template <typename Link>
FarSide FarSideOf(Link& link) {
    return {[&link](LinkState state) { link.SetLink(state); },
            [&link] { return link.Link(); },
            [&link] { return link.LinkUp(); },
            [&link] { return link.GetServer(); },
            [&link](const std::string& name) { link.SeeServer(name); },
            [&link] { return link.ServersSeen(); },
            link.Changed};
}

class LinkBox : public Section {
public:
    // The names of the box and its fields begin with `name`.
    LinkBox(const QString& name, const QString& title, const QString& switchLabel, FarSide farSide);

private:
    void SeeServer();
    void ShowState();

    FarSide link;
    QCheckBox* up;
    SignalLight* state;
    QLineEdit* seen;
    Readout* allSeen;
    Ticket watch;
};

}  // namespace orvelle::deck
