#include "replay/peers/UrlPeer.h"

namespace orvelle::replay {

bool UrlPeer::InternetCombineUrlA(const std::string& base, const std::string& relative, std::string& result, Long& size,
                                  Long flags) {
    return Deliver("InternetCombineUrlA", {base, relative, flags}, base + "/" + relative, result, size);
}

bool UrlPeer::InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size, Long flags) {
    return Deliver("InternetCanonicalizeUrlA", {url, flags}, url, result, size);
}

bool UrlPeer::InternetCrackUrlA(const std::string& url, Long flags, URL_COMPONENTS& parts) {
    const bool cracked = Ask("InternetCrackUrlA", {url, flags}, true);
    if (!cracked) return false;
    parts.HostName = url;
    for (std::string* part : {&parts.UserName, &parts.Password, &parts.UrlPath, &parts.ExtraInfo}) part->clear();
    return true;
}

bool UrlPeer::InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result, Long& size) {
    return Deliver("InternetCreateUrlA", {flags}, parts.HostName + parts.UrlPath, result, size);
}

Long UrlPeer::GetLastError() { return Answer("GetLastError", {}, {lastError}).front().As<Long>(); }

bool UrlPeer::Deliver(const std::string& member, const Values& arguments, const std::string& text, std::string& result,
                      Long& size) {
    const Long length = static_cast<Long>(text.size());
    const bool hasRoom = length <= size;
    const Values answer = AskAll(member, arguments, {hasRoom, hasRoom ? text : ""});
    const bool succeeded = answer[0].As<bool>();
    lastError = hasRoom ? 0 : InsufficientBuffer;
    result = answer[1].As<std::string>();
    size = succeeded ? static_cast<Long>(result.size()) : length;
    return succeeded;
}

}  // namespace orvelle::replay
