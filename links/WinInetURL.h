// Joins, cleans, takes apart and builds URLs by the system's functions. No operation raises an error; a result has at
// most 256 characters, and a failure is the empty string.
#pragma once

#include <string>

#include "platform/UrlFunctions.h"

namespace orvelle {

class WinInetURL {
public:
    explicit WinInetURL(UrlFunctions& urlFunctions) : urls(urlFunctions) {}

    std::string ExtraInfo;  // query part
    std::string URLPath;
    std::string Password;
    std::string UserName;
    Long Port = 0;
    std::string HostHame;
    Long Scheme = 0;  // as the system counts them

    // Both URLs must be there.
    std::string CombineUrl(const std::string& baseUrl, const std::string& relativeUrl, Long flags);
    std::string CanonicalizeUrl(const std::string& url, Long flags);
    // False in every case: success is told from the properties, which hold 1024 blanks each after a failure.
    bool CrackUrl(const std::string& url);
    // From the properties.
    std::string CreateURL();

private:
    UrlFunctions& urls;
};

}  // namespace orvelle
