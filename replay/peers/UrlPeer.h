// The scripted URL functions: each gives its input back, and fails on more than there is room for.
#pragma once

#include "platform/UrlFunctions.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class UrlPeer final : public UrlFunctions, private Peer {
public:
    using Peer::Peer;

    bool InternetCombineUrlA(const std::string& base, const std::string& relative, std::string& result, Long& size,
                             Long flags) override;
    bool InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size, Long flags) override;
    // The host is the whole URL, and there is nothing beside it.
    bool InternetCrackUrlA(const std::string& url, Long flags, URL_COMPONENTS& parts) override;
    // Host and path, one behind the other.
    bool InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result, Long& size) override;
    Long GetLastError() override;

private:
    bool Deliver(const std::string& member, const Values& arguments, const std::string& text, std::string& result,
                 Long& size);

    Long lastError = 0;
};

}  // namespace orvelle::replay
