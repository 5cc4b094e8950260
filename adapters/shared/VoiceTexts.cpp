#include "adapters/shared/VoiceTexts.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "adapters/shared/TeamSpeakUrl.h"

namespace orvelle {

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

constexpr const char* ControlRule = "may hold no control character";
constexpr const char* ArgumentRule =
    "may neither begin nor end with a blank, nor hold a quotation mark or a word that begins with \"/\" or \"-\"";
constexpr const char* AddressRule =
    "has to be an address that begins with \"teamspeak://\", as teamspeak://voice.example does";

std::string UrlRule(std::string_view signs) {
    std::string rule = "may hold no quotation mark, ";
    for (const char sign : signs) rule += std::string("\"") + sign + "\", ";
    return rule + "or \"%\" before two hexadecimal digits";
}

std::string NameRule(std::string_view signs) {
    return UrlRule(signs) + ", no word that begins with \"/\" or \"-\", and no blank at either end";
}

// Server and channel are one argument there, so they could begin an option where they meet.
Refusal RefusedByRogerWilco(const RadioVoiceSetting& record) {
    if (!IsArgument(record.Server)) return {"server", ArgumentRule};
    if (!IsArgument(record.Channel)) return {"channel", ArgumentRule};
    if (record.Server.empty() || IsArgument(record.Server + "/" + record.Channel)) return {};
    return {"server", ArgumentRule};
}

Refusal RefusedByTeamSpeak(const RadioVoiceSetting& record) {
    if (!IsName(record.Server, PartSignsBeforeOthers)) return {"server", NameRule(PartSignsBeforeOthers)};
    if (record.Software == TeamSpeakUrl && !record.Server.empty() && !IsTeamSpeakUrl(record.Server))
        return {"server", AddressRule};
    if (!IsName(record.Login, PartSignsBeforeOthers)) return {"login name", NameRule(PartSignsBeforeOthers)};
    if (!IsUrlPart(record.Password, PartSignsBeforeOthers)) return {"password", UrlRule(PartSignsBeforeOthers)};
    if (!IsName(record.Channel, PartSigns)) return {"channel", NameRule(PartSigns)};
    return {};
}

Refusal RefusedByAll(const RadioVoiceSetting& record) {
    if (HoldsControl(record.Server)) return {"server", ControlRule};
    if (HoldsControl(record.Channel)) return {"channel", ControlRule};
    if (HoldsControl(record.Login)) return {"login name", ControlRule};
    if (HoldsControl(record.Password)) return {"password", ControlRule};
    return {};
}

}  // namespace

Refusal RefusalOf(const RadioVoiceSetting& record) {
    if (const Refusal refusal = RefusedByAll(record); !refusal.Part.empty()) return refusal;
    switch (record.Software) {
        case RogerWilco:
            return RefusedByRogerWilco(record);
        case TeamSpeakHost:
        case TeamSpeakUrl:
            return RefusedByTeamSpeak(record);
        default:
            return {};
    }
}

bool IsAllowedCallsign(const std::string& callsign) { return IsName(callsign, PartSignsBeforeOthers); }

std::string CallsignRule() { return NameRule(PartSignsBeforeOthers); }

}  // namespace orvelle
