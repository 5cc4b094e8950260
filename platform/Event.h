// An event of a control: at most one handler, called at once on the raiser's stack. Raising an event that nobody
// handles does nothing. A handler may throw RuntimeError, which passes through.
#pragma once

#include <functional>
#include <utility>

namespace orvelle {

template <typename... Arguments>
class Event {
public:
    template <typename Handler>
    Event& operator=(Handler&& newHandler) {
        handler = std::forward<Handler>(newHandler);
        return *this;
    }

    void operator()(Arguments... arguments) const {
        if (handler) handler(arguments...);
    }

    bool IsHandled() const { return static_cast<bool>(handler); }

private:
    std::function<void(Arguments...)> handler;
};

}  // namespace orvelle
