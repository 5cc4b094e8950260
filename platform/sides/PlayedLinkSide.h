// What whoever plays a link can do beyond taking it up and down, and what a real one does by itself: report servers on
// the network, and be slow. Asked of the link's far side, which has none where the link is real.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

namespace orvelle {

class PlayedLinkSide {
public:
    virtual ~PlayedLinkSide() = default;

    // Reports a server on the network to the panel, by a name or an address.
    virtual void SeeServer(const std::string& name) = 0;
    virtual const std::vector<std::string>& ServersSeen() const = 0;  // each once
    // How long what happens here takes to the panel, milliseconds.
    virtual void SetDelay(Long milliseconds) = 0;
    virtual Long Delay() const = 0;
};

}  // namespace orvelle
