// The addresses of a host name, asked for without holding up the loop: the system's resolver may take many seconds, so
// it works in the background. The answer comes by the loop.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/shared/BackgroundWork.h"

namespace orvelle {

class HostLookup {
public:
    // Numeric addresses in the order in which they should be tried; none where the name leads nowhere.
    using Answer = std::function<void(const std::vector<std::string>& addresses)>;

    // An address is its own answer. `answer` is called once from the loop, unless this object goes before.
    HostLookup(EventLoop& loop, const std::string& host, Answer answer);

private:
    const std::shared_ptr<std::vector<std::string>> found = std::make_shared<std::vector<std::string>>();
    const BackgroundWork work;
};

}  // namespace orvelle
