// Gathers sentences for the user: all that arise before the loop's turn make one message, each on a line of its own,
// since a store that something else has written to may be full of wrong values.
#pragma once

#include <string>

#include "adapters/shared/Delivery.h"
#include "platform/Event.h"
#include "platform/Notices.h"

namespace orvelle {

class NoticeBoard : public Notices {
public:
    explicit NoticeBoard(EventLoop& loop) : delivery(loop) {}

    void Tell(const std::string& sentence) override;

    // The message, from the loop.
    Event<const std::string&> Told;

private:
    Delivery delivery;
    std::string untold;  // sentences, a line each
};

}  // namespace orvelle
