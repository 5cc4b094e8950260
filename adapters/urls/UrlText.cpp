#include "adapters/urls/UrlText.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

namespace orvelle::urls {

namespace {

constexpr UrlScheme Schemes[] = {
    {1, "ftp", 21},   {2, "gopher", 70}, {3, "http", 80},      {4, "https", 443},   {5, "file", 0}, {6, "news", 0},
    {7, "mailto", 0}, {8, "socks", 0},   {9, "javascript", 0}, {10, "vbscript", 0}, {11, "res", 0},
};

bool IsLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }

bool IsSchemeCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           std::string_view("+-.").find(character) != std::string_view::npos;
}

bool IsScheme(std::string_view text) {
    return !text.empty() && IsLetter(text.front()) && std::all_of(text.begin(), text.end(), IsSchemeCharacter);
}

bool IsUnsafe(char character, UrlEncoding encoding) {
    if (encoding == UrlEncoding::Spaces) return character == ' ';
    if (encoding == UrlEncoding::Host && (character == '[' || character == ']')) return false;
    const auto byte = static_cast<unsigned char>(character);
    return (byte != 0 && byte <= ' ') || byte >= 0x7F ||
           std::string_view("<>\"{}|\\^[]`").find(character) != std::string_view::npos;
}

void AppendEncoded(std::string& text, char character) {
    constexpr char Digits[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    text += '%';
    text += Digits[byte >> 4];
    text += Digits[byte & 15];
}

// -1 where the character is no digit.
int HexDigit(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    return -1;
}

// What follows the first `delimiter`, cut off from the text; none where there is no such delimiter.
std::optional<std::string> CutOff(std::string_view& text, char delimiter) {
    const std::size_t at = text.find(delimiter);
    if (at == std::string_view::npos) return std::nullopt;
    std::string rest(text.substr(at + 1));
    text = text.substr(0, at);
    return rest;
}

}  // namespace

UrlText::UrlText(std::string_view url) {
    Fragment = CutOff(url, '#');
    Query = CutOff(url, '?');
    const std::size_t colon = url.find(':');
    if (colon != std::string_view::npos && IsScheme(url.substr(0, colon))) {
        Scheme = std::string(url.substr(0, colon));
        url.remove_prefix(colon + 1);
    }
    if (url.substr(0, 2) == "//") {
        url.remove_prefix(2);
        const std::size_t end = std::min(url.find('/'), url.size());
        Authority = std::string(url.substr(0, end));
        url.remove_prefix(end);
    }
    Path = std::string(url);
}

std::string UrlText::Join() const {
    std::string url;
    if (Scheme) url.append(*Scheme).append(":");
    if (Authority) url.append("//").append(*Authority);
    url += Path;
    if (Query) url.append("?").append(*Query);
    if (Fragment) url.append("#").append(*Fragment);
    return url;
}

const UrlScheme* FindUrlScheme(std::string_view name) {
    const auto sameLetter = [](char left, char right) {
        return std::tolower(static_cast<unsigned char>(left)) == std::tolower(static_cast<unsigned char>(right));
    };
    for (const UrlScheme& scheme : Schemes)
        if (std::equal(name.begin(), name.end(), scheme.Name.begin(), scheme.Name.end(), sameLetter)) return &scheme;
    return nullptr;
}

const UrlScheme* FindUrlScheme(int number) {
    for (const UrlScheme& scheme : Schemes)
        if (scheme.Number == number) return &scheme;
    return nullptr;
}

std::string EncodeUrl(std::string_view text, UrlEncoding encoding) {
    std::string encoded;
    for (const char character : text) {
        if (IsUnsafe(character, encoding))
            AppendEncoded(encoded, character);
        else
            encoded += character;
    }
    return encoded;
}

std::string EncodeUrlPercent(std::string_view text) {
    std::string encoded;
    for (const char character : text) {
        if (character == '%')
            AppendEncoded(encoded, character);
        else
            encoded += character;
    }
    return encoded;
}

std::string DecodeUrl(std::string_view text) {
    std::string decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int high = text[at] == '%' && at + 2 < text.size() ? HexDigit(text[at + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[at + 2]) : -1;
        if (low >= 0) {
            decoded += static_cast<char>(high * 16 + low);
            at += 2;
        } else {
            decoded += text[at];
        }
    }
    return decoded;
}

std::string RemoveDotSegments(std::string_view path) {
    std::vector<std::string_view> kept;
    bool endsInFolder = false;
    const bool isAbsolute = path.substr(0, 1) == "/";
    if (isAbsolute) path.remove_prefix(1);
    while (true) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view segment = path.substr(0, end);
        const bool isLast = end == path.size();
        endsInFolder = segment == "." || segment == "..";
        if (segment == "..") {
            if (!kept.empty()) kept.pop_back();
        } else if (segment != ".") {
            kept.push_back(segment);
        }
        if (isLast) break;
        path.remove_prefix(end + 1);
    }
    std::string result = isAbsolute ? "/" : "";
    for (std::size_t index = 0; index < kept.size(); ++index) {
        result += kept[index];
        if (index + 1 < kept.size() || endsInFolder) result += '/';
    }
    return result;
}

UrlText ResolveUrl(const UrlText& base, const UrlText& relative) {
    UrlText target = relative;
    if (relative.Scheme) return target;
    target.Scheme = base.Scheme;
    if (relative.Authority) return target;
    target.Authority = base.Authority;
    if (relative.Path.empty()) {
        target.Path = base.Path;
        if (!relative.Query) target.Query = base.Query;
    } else if (relative.Path.front() != '/') {
        const std::string folder = base.Path.substr(0, base.Path.rfind('/') + 1);
        target.Path = (folder.empty() && base.Authority ? "/" : folder) + relative.Path;
    }
    return target;
}

}  // namespace orvelle::urls
