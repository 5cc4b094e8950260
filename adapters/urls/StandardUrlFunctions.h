// The URL functions as the Windows desktop's Internet library has them, on bytes: a text is taken apart by its
// delimiters alone, so that no byte of it can be refused or change the host. Any scheme will do; only http, https, ftp
// and gopher have a default port, and only they and file are hierarchical in the sense that a path starts with "/".
// Needs no display.
#pragma once

#include "platform/UrlFunctions.h"

namespace orvelle::urls {

enum UrlFlag : Long {
    UrlEncodePercent = 0x00001000,     // also "%" becomes "%25"
    UrlBrowserMode = 0x02000000,       // leaves what follows "#" or "?" alone
    UrlEncodeSpacesOnly = 0x04000000,  // of what is unsafe
    UrlKeepMeta = 0x08000000,          // leaves "." and ".." in the path
    UrlDecode = 0x10000000,            // "%41" becomes "A" first
    UrlNoEncode = 0x20000000,
    UrlEscape = static_cast<Long>(0x80000000),  // InternetCreateUrlA: encodes path and query
};

enum UrlError : Long { UrlInvalidParameter = 87, UrlInvalid = 12005, UrlUnknownScheme = 12006 };

class StandardUrlFunctions : public UrlFunctions {
public:
    bool InternetCombineUrlA(const std::string& base, const std::string& relative, std::string& result, Long& size,
                             Long flags) override;
    bool InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size, Long flags) override;
    bool InternetCrackUrlA(const std::string& url, Long flags, URL_COMPONENTS& parts) override;
    bool InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result, Long& size) override;
    Long GetLastError() override { return lastError; }

private:
    bool Answer(std::string text, std::string& result, Long& size);
    bool Fail(Long error);

    Long lastError = 0;
};

}  // namespace orvelle::urls
