// A URL taken apart by its delimiters (scheme ":" "//" authority path "?" query "#" fragment) and put together again,
// and the rules that its texts are cleaned by. Bytes in, bytes out; every text is some URL.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvelle::urls {

struct UrlText {
    explicit UrlText(std::string_view url);
    std::string Join() const;

    // Without their delimiters; none where the delimiter is missing, too.
    std::optional<std::string> Scheme;
    std::optional<std::string> Authority;
    std::string Path;
    std::optional<std::string> Query;
    std::optional<std::string> Fragment;
};

// Number, name and default port of a scheme that the Windows desktop knows; the port is 0 where it has none.
struct UrlScheme {
    int Number;
    std::string_view Name;
    int Port;
};
// Case does not count. Null for another scheme.
const UrlScheme* FindUrlScheme(std::string_view name);
const UrlScheme* FindUrlScheme(int number);

// Host leaves "[" and "]", which belong to the address of a host.
enum class UrlEncoding { All, Host, Spaces };
// Unsafe bytes as "%" and two digits. Zero bytes are no part of a text and stay.
std::string EncodeUrl(std::string_view text, UrlEncoding encoding);
std::string EncodeUrlPercent(std::string_view text);
std::string DecodeUrl(std::string_view text);
// Takes "." and ".." out of a path.
std::string RemoveDotSegments(std::string_view path);
// The URL that `relative` means on the page `base`.
UrlText ResolveUrl(const UrlText& base, const UrlText& relative);

}  // namespace orvelle::urls
