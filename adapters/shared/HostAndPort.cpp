#include "adapters/shared/HostAndPort.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace orvelle {

namespace {

constexpr int LastPort = 65535;
constexpr std::size_t LongestHost = 253;  // the longest name that the domain name system has
constexpr std::string_view Blanks = " \t\r\n";

std::string_view WithoutBlanksAround(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::optional<int> ReadPort(std::string_view text) {
    int port = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, port);
    return error == std::errc() && stop == end && port >= 1 && port <= LastPort ? std::optional(port) : std::nullopt;
}

}  // namespace

bool IsHost(std::string_view text) {
    return !text.empty() && text.size() <= LongestHost && std::all_of(text.begin(), text.end(), [](char character) {
        return static_cast<unsigned char>(character) > ' ' && character != '\x7F';
    });
}

std::optional<HostAndPort> ReadHostAndPort(std::string_view text, int usualPort) {
    text = WithoutBlanksAround(text);
    std::string_view host = text;
    std::optional<int> port = usualPort;
    if (text.starts_with('[')) {
        const std::size_t bracket = text.find(']');
        if (bracket == text.npos) return std::nullopt;
        host = text.substr(1, bracket - 1);
        const std::string_view rest = text.substr(bracket + 1);
        if (!rest.empty()) port = rest.front() == ':' ? ReadPort(rest.substr(1)) : std::nullopt;
    } else if (std::ranges::count(text, ':') == 1) {
        host = text.substr(0, text.find(':'));
        port = ReadPort(text.substr(host.size() + 1));
    }
    if (!port || !IsHost(host)) return std::nullopt;
    return HostAndPort{std::string(host), *port};
}

std::string WriteHostAndPort(const HostAndPort& place, int usualPort) {
    if (place.Port == usualPort) return place.Host;
    const bool isVersion6 = place.Host.find(':') != std::string::npos;
    return (isVersion6 ? "[" + place.Host + "]" : place.Host) + ":" + std::to_string(place.Port);
}

std::string HostInLowerCase(std::string host) {
    std::ranges::transform(host, host.begin(), [](char each) {
        return each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
    });
    return host;
}

HostAndPort InLowerCase(HostAndPort place) {
    place.Host = HostInLowerCase(std::move(place.Host));
    return place;
}

}  // namespace orvelle
