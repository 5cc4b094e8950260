// Paths below the local machine's root that the panel reads and writes, and that an adapter may give a meaning on its
// system.
#pragma once

namespace orvelle {

constexpr const char* RunPath = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* FrameworkPath = "SOFTWARE\\Orvelle\\Kestrine\\1.0";
constexpr const char* TeamSpeakCommandPath = "SOFTWARE\\Classes\\teamspeak\\Shell\\Open\\command";
constexpr const char* RogerWilcoPath = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\roger.exe";

}  // namespace orvelle
