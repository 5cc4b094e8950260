// The system's URL functions. Texts are ANSI. Each answers True with a result of at most the size that was given, or
// False with the reason in GetLastError.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

constexpr Long InsufficientBuffer = 122;

// The parts of a URL. For InternetCrackUrlA each text comes in as a buffer, whose size is its room, and goes out as
// the part. For InternetCreateUrlA the texts are 16-bit characters, low byte first, of which the function sees bytes.
struct URL_COMPONENTS {
    Long Size = 60;
    Long Scheme = 0;  // as the system counts them: 1 ftp, 3 http, 4 https, -1 unknown
    std::string HostName;
    Long Port = 0;
    std::string UserName;
    std::string Password;
    std::string UrlPath;
    std::string ExtraInfo;
};

class UrlFunctions {
public:
    virtual ~UrlFunctions() = default;

    // `size` is the room on the way in; on success `result` is the text, and on InsufficientBuffer `size` is the
    // room that it needs.
    virtual bool InternetCombineUrlA(const std::string& base, const std::string& relative, std::string& result,
                                     Long& size, Long flags) = 0;
    virtual bool InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size, Long flags) = 0;
    virtual bool InternetCrackUrlA(const std::string& url, Long flags, URL_COMPONENTS& parts) = 0;
    virtual bool InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result, Long& size) = 0;
    virtual Long GetLastError() = 0;
};

}  // namespace orvelle
