#include "links/WinInetURL.h"

#include "panel/Texts.h"

namespace orvelle {

namespace {

constexpr Long ResultSize = 256;
constexpr std::size_t PartSize = 1024;
constexpr Long RetryFlags = static_cast<Long>(0x80000000);

// The 16-bit characters of a text, low byte first.
std::string WideText(const std::string& text) {
    std::string wide;
    for (const char character : text) {
        wide += character;
        wide += '\0';
    }
    return wide;
}

}  // namespace

std::string WinInetURL::CombineUrl(const std::string& baseUrl, const std::string& relativeUrl, Long flags) {
    if (baseUrl.empty() || relativeUrl.empty()) return "";
    std::string result;
    Long size = ResultSize;
    return urls.InternetCombineUrlA(baseUrl, relativeUrl, result, size, flags) ? result : "";
}

std::string WinInetURL::CanonicalizeUrl(const std::string& url, Long flags) {
    if (url.empty()) return "";
    std::string result;
    Long size = ResultSize;
    return urls.InternetCanonicalizeUrlA(url, result, size, flags) ? result : "";
}

bool WinInetURL::CrackUrl(const std::string& url) {
    for (std::string* part : {&HostHame, &UserName, &Password, &URLPath, &ExtraInfo}) part->assign(PartSize, ' ');
    URL_COMPONENTS parts;
    parts.Scheme = Scheme;
    parts.HostName = HostHame;
    parts.Port = Port;
    parts.UserName = UserName;
    parts.Password = Password;
    parts.UrlPath = URLPath;
    parts.ExtraInfo = ExtraInfo;
    if (urls.InternetCrackUrlA(url, 0, parts)) {
        Scheme = parts.Scheme;
        Port = parts.Port;
        HostHame = parts.HostName;
        UserName = parts.UserName;
        Password = parts.Password;
        URLPath = parts.UrlPath;
        ExtraInfo = parts.ExtraInfo;
    }
    return false;
}

// The function of bytes is handed 16-bit text, so its result has a zero behind each letter. Where the room is too small
// it is asked again, with the size that it reported; no more than the room for it is taken of what comes then.
std::string WinInetURL::CreateURL() {
    URL_COMPONENTS parts;
    parts.Scheme = Scheme;
    parts.Port = Port;
    parts.HostName = WideText(HostHame);
    parts.UserName = WideText(UserName);
    parts.Password = WideText(Password);
    parts.UrlPath = WideText(URLPath);
    parts.ExtraInfo = WideText(ExtraInfo);
    std::string result;
    Long size = ResultSize;
    Long flags = 0;
    while (!urls.InternetCreateUrlA(parts, flags, result, size)) {
        if (urls.GetLastError() != InsufficientBuffer) return "";
        flags = RetryFlags;
    }
    return Without(result.substr(0, ResultSize), std::string(1, '\0'));
}

}  // namespace orvelle
