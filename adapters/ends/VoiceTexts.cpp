#include "adapters/ends/VoiceTexts.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "adapters/shared/TeamSpeakUrl.h"

namespace orvelle::ends {

namespace {

constexpr char LastControl = 0x1F;
constexpr char Delete = 0x7F;

// Of every text, the engine's and the players' as well.
bool HoldsControl(std::string_view text) {
    return std::ranges::any_of(
        text, [](char character) { return (character >= 0 && character <= LastControl) || character == Delete; });
}

bool LooksLikeOption(std::string_view word) { return word.size() > 1 && (word.front() == '/' || word.front() == '-'); }

bool HoldsOption(std::string_view text) {
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        if (LooksLikeOption(text.substr(start, end - start))) return true;
        start = end + 1;
    }
    return false;
}

// Of a text that goes into a command line: it begins like a name, and no word of it like an option.
bool IsArgument(std::string_view text) {
    if (HoldsControl(text) || text.find('"') != std::string_view::npos) return false;
    if (text.empty()) return true;
    return std::string_view("/- ").find(text.front()) == std::string_view::npos && text.back() != ' ' &&
           !HoldsOption(text);
}

bool HoldsEncoded(std::string_view text) {
    const auto isDigit = [text](std::size_t at) {
        return at < text.size() && std::isxdigit(static_cast<unsigned char>(text[at])) != 0;
    };
    for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1))
        if (isDigit(at + 1) && isDigit(at + 2)) return true;
    return false;
}

constexpr std::string_view PartSigns = "?&";
// The number sign would end the query before its other parts; in the last one it ends nothing.
constexpr std::string_view PartSignsBeforeOthers = "?&#";

// Of a text that goes into a URL.
bool IsUrlPart(std::string_view text, std::string_view signs) {
    return text.find_first_of(signs) == std::string_view::npos && text.find('"') == std::string_view::npos &&
           !HoldsEncoded(text);
}

// The URL's names may end as arguments as well, once TeamSpeak's library has them.
bool IsName(std::string_view text, std::string_view signs) { return IsArgument(text) && IsUrlPart(text, signs); }

// Server and channel are one argument there, so they could begin an option where they meet.
std::string RefusedByRogerWilco(const RadioVoiceSetting& record) {
    if (!IsArgument(record.Server)) return "server";
    if (!IsArgument(record.Channel)) return "channel";
    return record.Server.empty() || IsArgument(record.Server + "/" + record.Channel) ? "" : "server";
}

std::string RefusedByTeamSpeak(const RadioVoiceSetting& record) {
    if (!IsName(record.Server, PartSignsBeforeOthers)) return "server";
    if (record.Software == TeamSpeakUrl && !record.Server.empty() && !IsTeamSpeakUrl(record.Server)) return "server";
    if (!IsName(record.Login, PartSignsBeforeOthers)) return "login name";
    if (!IsUrlPart(record.Password, PartSignsBeforeOthers)) return "password";
    return IsName(record.Channel, PartSigns) ? "" : "channel";
}

std::string RefusedByAll(const RadioVoiceSetting& record) {
    if (HoldsControl(record.Server)) return "server";
    if (HoldsControl(record.Channel)) return "channel";
    if (HoldsControl(record.Login)) return "login name";
    return HoldsControl(record.Password) ? "password" : "";
}

}  // namespace

std::string RefusedPart(const RadioVoiceSetting& record) {
    if (const std::string part = RefusedByAll(record); !part.empty()) return part;
    switch (record.Software) {
        case RogerWilco:
            return RefusedByRogerWilco(record);
        case TeamSpeakHost:
        case TeamSpeakUrl:
            return RefusedByTeamSpeak(record);
        default:
            return "";
    }
}

bool IsAllowedCallsign(const std::string& callsign) { return IsName(callsign, PartSignsBeforeOthers); }

}  // namespace orvelle::ends
