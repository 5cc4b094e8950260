#include "adapters/urls/StandardUrlFunctions.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <tuple>
#include <utility>

#include "adapters/urls/UrlText.h"

namespace orvelle::urls {

namespace {

constexpr Long UnknownScheme = -1;
constexpr Long DefaultScheme = 0;
constexpr Long Http = 3;
constexpr Long LastPort = 65535;

bool Has(Long flags, UrlFlag flag) { return (flags & flag) != 0; }

std::string Trimmed(const std::string& text) {
    constexpr const char* Blanks = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::string Clean(const std::string& text, Long flags, UrlEncoding encoding = UrlEncoding::All) {
    std::string cleaned = Has(flags, UrlDecode) ? DecodeUrl(text) : text;
    if (Has(flags, UrlEncodePercent)) cleaned = EncodeUrlPercent(cleaned);
    if (Has(flags, UrlEncodeSpacesOnly)) return EncodeUrl(cleaned, UrlEncoding::Spaces);
    return Has(flags, UrlNoEncode) ? cleaned : EncodeUrl(cleaned, encoding);
}

std::string Canonical(UrlText url, Long flags) {
    const UrlScheme* scheme = url.Scheme ? FindUrlScheme(*url.Scheme) : nullptr;
    if (scheme != nullptr) {
        url.Scheme = std::string(scheme->Name);
        if (url.Authority) std::replace(url.Path.begin(), url.Path.end(), '\\', '/');
    }
    if (url.Authority) {
        if (!Has(flags, UrlKeepMeta)) url.Path = RemoveDotSegments(url.Path);
        url.Authority = Clean(*url.Authority, flags, UrlEncoding::Host);
        if (scheme != nullptr && url.Path.empty()) url.Path = '/';
    }
    url.Path = Clean(url.Path, flags);
    if (!Has(flags, UrlBrowserMode)) {
        if (url.Query) url.Query = Clean(*url.Query, flags);
        if (url.Fragment) url.Fragment = Clean(*url.Fragment, flags);
    }
    return url.Join();
}

// The port behind the last ":" of an authority, cut off; none if that is no port.
std::optional<Long> CutOffPort(std::string& host, Long defaultPort) {
    const std::size_t colon = host.rfind(':');
    if (colon == std::string::npos || host.find(']', colon) != std::string::npos) return defaultPort;
    const std::string digits = host.substr(colon + 1);
    host.resize(colon);
    if (digits.empty()) return defaultPort;
    Long port = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), port);
    if (read.ec != std::errc() || read.ptr != digits.data() + digits.size() || port < 0 || port > LastPort)
        return std::nullopt;
    return port;
}

// What stands before the first `delimiter` and behind it.
std::pair<std::string, std::string> SplitAt(const std::string& text, std::size_t at) {
    if (at == std::string::npos) return {text, ""};
    return {text.substr(0, at), text.substr(at + 1)};
}

}  // namespace

bool StandardUrlFunctions::Answer(std::string text, std::string& result, Long& size) {
    const auto length = static_cast<Long>(text.size());
    const bool fits = length <= size;
    size = length;
    if (!fits) return Fail(InsufficientBuffer);
    result = std::move(text);
    return true;
}

bool StandardUrlFunctions::Fail(Long error) {
    lastError = error;
    return false;
}

bool StandardUrlFunctions::InternetCombineUrlA(const std::string& base, const std::string& relative,
                                               std::string& result, Long& size, Long flags) {
    const UrlText baseUrl(Trimmed(base));
    if (!baseUrl.Scheme) return Fail(UrlInvalid);
    return Answer(Canonical(ResolveUrl(baseUrl, UrlText(Trimmed(relative))), flags), result, size);
}

bool StandardUrlFunctions::InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size,
                                                    Long flags) {
    return Answer(Canonical(UrlText(Trimmed(url)), flags), result, size);
}

bool StandardUrlFunctions::InternetCrackUrlA(const std::string& url, Long, URL_COMPONENTS& parts) {
    const UrlText text(Trimmed(url));
    if (!text.Scheme) return Fail(UrlInvalid);
    const UrlScheme* scheme = FindUrlScheme(*text.Scheme);

    std::string host = text.Authority.value_or("");
    std::string user;
    std::string password;
    if (const std::size_t at = host.rfind('@'); at != std::string::npos) {
        const std::string login = host.substr(0, at);
        std::tie(user, password) = SplitAt(login, login.find(':'));
        host.erase(0, at + 1);
    }
    const std::optional<Long> port = CutOffPort(host, scheme == nullptr ? 0 : scheme->Port);
    if (!port) return Fail(UrlInvalid);
    std::string path = text.Path;
    std::string extra;
    if (text.Query) extra.append("?").append(*text.Query);
    if (text.Fragment) extra.append("#").append(*text.Fragment);
    // Without room of its own the query goes with the path.
    if (parts.ExtraInfo.empty()) path += std::exchange(extra, "");

    const std::pair<std::string*, std::string*> texts[] = {{&parts.HostName, &host},
                                                           {&parts.UserName, &user},
                                                           {&parts.Password, &password},
                                                           {&parts.UrlPath, &path},
                                                           {&parts.ExtraInfo, &extra}};
    for (const auto& [room, part] : texts)
        if (!room->empty() && part->size() > room->size()) return Fail(InsufficientBuffer);
    for (const auto& [room, part] : texts)
        if (!room->empty()) *room = std::move(*part);
    parts.Scheme = scheme == nullptr ? UnknownScheme : scheme->Number;
    parts.Port = *port;
    return true;
}

bool StandardUrlFunctions::InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result,
                                              Long& size) {
    const UrlScheme* scheme = FindUrlScheme(static_cast<int>(parts.Scheme == DefaultScheme ? Http : parts.Scheme));
    if (scheme == nullptr) return Fail(UrlUnknownScheme);
    if (parts.UserName.empty() && !parts.Password.empty()) return Fail(UrlInvalidParameter);

    std::string url(scheme->Name);
    url.append("://").append(parts.UserName);
    if (!parts.Password.empty()) url.append(":").append(parts.Password);
    if (!parts.UserName.empty()) url += '@';
    url += parts.HostName;
    if (parts.Port != 0 && parts.Port != scheme->Port) url.append(":").append(std::to_string(parts.Port));
    std::string rest;
    if (!parts.UrlPath.empty() && parts.UrlPath.front() != '/') rest = '/';
    rest.append(parts.UrlPath).append(parts.ExtraInfo);
    url += Has(flags, UrlEscape) ? EncodeUrl(rest, UrlEncoding::All) : rest;
    return Answer(std::move(url), result, size);
}

}  // namespace orvelle::urls
