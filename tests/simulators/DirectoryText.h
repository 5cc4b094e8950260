// Texts of directories as tests write them: with ' in place of ", and one entry in an otherwise good directory.
#pragma once

#include <algorithm>
#include <string>

namespace orvelle::directory {

inline std::string Json(std::string text) {
    std::ranges::replace(text, '\'', '"');
    return text;
}

// Each on lines of its own: servers on line 2, a station on line 3, a channel everywhere on line 4.
inline std::string DirectoryWith(const std::string& servers, const std::string& stations = "",
                                 const std::string& everywhere = "", const std::string& others = "") {
    return Json("{'format': 'orvelle-directory/1', 'name': 'Club',\n 'servers': {" + servers + "},\n 'stations': [" +
                stations + "],\n 'everywhere': [" + everywhere + "]" + others + "}\n");
}

constexpr const char* ClubServer = "'club': {'software': 'teamspeak', 'server': 'voice.example.org'}";

// In Keflavik, unless it is elsewhere.
inline std::string StationText(const std::string& callsign, int kilohertz, const std::string& more = "",
                               const std::string& place = "'latDeg': 63.98, 'lonDeg': -22.61, 'heightMslM': 52") {
    return "{'callsign': '" + callsign + "', 'transceivers': [{'frequency': " + std::to_string(kilohertz) + "000, " +
           place + "}], 'voice': {'server': 'club', 'channel': '" + callsign + "'}" + more + "}";
}

}  // namespace orvelle::directory
