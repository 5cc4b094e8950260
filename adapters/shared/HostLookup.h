// The addresses of a host name, asked for without holding up the loop: the system's resolver may take many seconds, so
// it works on a thread of its own, which touches nothing of its asker and may outlive it. The answer comes by the loop.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventLoop.h"

namespace orvelle {

class HostLookup {
public:
    // Numeric addresses in the order in which they should be tried; none where the name leads nowhere.
    using Answer = std::function<void(const std::vector<std::string>& addresses)>;

    // An address is its own answer. `answer` is called once from the loop, unless this object goes before.
    HostLookup(EventLoop& loop, const std::string& host, Answer answer);
    HostLookup(const HostLookup&) = delete;
    HostLookup& operator=(const HostLookup&) = delete;
    ~HostLookup();

private:
    struct Asked;

    void Take();

    Answer answer;
    std::shared_ptr<Asked> asked;
    Ticket ready;
};

}  // namespace orvelle
