// A link from its far side, whichever of the two it is: whoever plays or tests the far side takes it up and down, makes
// it slow, and reports servers. What the panel does there shows after each call of an observer.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class LinkState { Down, Up };

class LinkSide {
public:
    virtual ~LinkSide() = default;

    virtual void SetLink(LinkState state) = 0;
    virtual LinkState Link() const = 0;      // as wanted here
    virtual bool IsUp() const = 0;           // as the panel was told
    virtual std::string Server() const = 0;  // the name by which the panel came here; "" while it has not
    // Reports a server on the network to the panel, by a name or an address.
    virtual void SeeServer(const std::string& name) = 0;
    virtual const std::vector<std::string>& ServersSeen() const = 0;  // each once
    // How long what happens here takes to the panel, milliseconds.
    virtual void SetDelay(Long milliseconds) = 0;
    virtual Long Delay() const = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
