// An answer of an X server, which frees itself. Null where the request failed.
#pragma once

#include <cstdlib>
#include <memory>

namespace orvelle {

struct XFree {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using XReply = std::unique_ptr<Reply, XFree>;

template <typename Reply>
XReply<Reply> OwnReply(Reply* reply) {
    return XReply<Reply>(reply);
}

}  // namespace orvelle
