// What counts as an address of TeamSpeak: a URL of its own scheme, in whichever case. A text of another scheme may name
// anything, a file of this computer as well. Asked where the network's texts enter and where one goes to the program.
#pragma once

#include <algorithm>
#include <cctype>
#include <string_view>

namespace orvelle {

inline bool IsTeamSpeakUrl(std::string_view text) {
    constexpr std::string_view Head = "teamspeak://";
    return text.size() >= Head.size() && std::equal(Head.begin(), Head.end(), text.begin(), [](char one, char other) {
               return one == std::tolower(static_cast<unsigned char>(other));
           });
}

}  // namespace orvelle
