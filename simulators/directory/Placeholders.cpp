#include "simulators/directory/Placeholders.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "simulators/directory/Channels.h"

namespace orvelle::directory {

namespace {

constexpr std::array<std::string_view, 5> Names{"{mhz}", "{khz}", "{station}", "{airport}", "{callsign}"};

// Up to the first underscore: BIKF of BIKF_TWR.
std::string AirportOf(const std::string& station) { return station.substr(0, station.find('_')); }

std::string ValueOf(std::string_view name, const Placeholders& values) {
    if (name == "{mhz}") return Megahertz(values.Kilohertz);
    if (name == "{khz}") return std::to_string(values.Kilohertz);
    if (name == "{station}") return values.Station;
    if (name == "{airport}") return AirportOf(values.Station);
    return values.Callsign;
}

}  // namespace

std::string Fill(std::string_view text, const Placeholders& values) {
    std::string filled;
    while (!text.empty()) {
        const auto name = std::ranges::find_if(Names, [text](auto begin) { return text.starts_with(begin); });
        if (name == Names.end()) {
            const std::size_t plain = std::min(text.find('{', 1), text.size());
            filled += text.substr(0, plain);
            text.remove_prefix(plain);
        } else {
            filled += ValueOf(*name, values);
            text.remove_prefix(name->size());
        }
    }
    return filled;
}

RadioVoiceSetting FilledRecord(const VoiceServer& server, const VoiceEntry& entry, const Placeholders& values) {
    return {server.Software, Fill(server.Server, values), Fill(entry.Channel.value_or(server.Channel), values),
            Fill(server.Login, values), server.Password};
}

std::vector<std::string_view> NamesInBraces(std::string_view text) {
    std::vector<std::string_view> names;
    for (std::size_t begin = text.find('{'); begin != std::string_view::npos; begin = text.find('{', begin + 1)) {
        std::size_t end = begin + 1;
        while (end < text.size() && std::isalpha(static_cast<unsigned char>(text[end])) != 0) ++end;
        if (end > begin + 1 && end < text.size() && text[end] == '}')
            names.push_back(text.substr(begin, end + 1 - begin));
    }
    return names;
}

bool IsPlaceholder(std::string_view inBraces) { return std::ranges::find(Names, inBraces) != Names.end(); }

}  // namespace orvelle::directory
