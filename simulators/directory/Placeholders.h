// What stands in braces in a directory's texts, and the voice record that they come to. One rule for what is published
// and for what is told of a directory before.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/SessionSetting.h"
#include "simulators/directory/Directory.h"

namespace orvelle::directory {

struct Placeholders {
    int Kilohertz = 0;
    std::string Station;   // its callsign, "" for none
    std::string Callsign;  // the pilot's
};

// Each of {mhz} {khz} {station} {airport} {callsign} once, from left to right; other braces stay as they are.
std::string Fill(std::string_view text, const Placeholders& values);

// Of both, the entry's channel first. The password is taken as it stands.
RadioVoiceSetting FilledRecord(const VoiceServer& server, const VoiceEntry& entry, const Placeholders& values);

// The names in braces that a text holds, with the braces: letters alone.
std::vector<std::string_view> NamesInBraces(std::string_view text);
bool IsPlaceholder(std::string_view inBraces);

}  // namespace orvelle::directory
