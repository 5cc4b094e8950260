// A link from its far side, whichever of the two it is: whoever is or plays the far side takes it up and down. What the
// panel does there shows after each call of an observer.
#pragma once

#include <functional>
#include <string>

#include "platform/Ticket.h"

namespace orvelle {

class PlayedLinkSide;

enum class LinkState { Down, Up };

class LinkSide {
public:
    virtual ~LinkSide() = default;

    virtual void SetLink(LinkState state) = 0;
    virtual LinkState Link() const = 0;      // as wanted here
    virtual bool IsUp() const = 0;           // as the panel was told
    virtual std::string Server() const = 0;  // the name by which the panel came here; "" while it has not
    // What can be done to it besides where it is played; null for a real one.
    virtual PlayedLinkSide* Played() = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
