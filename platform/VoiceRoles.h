// The voice duties that the panels of several computers share. Each is an interface record of one type whose role names
// the duty: a voice program for one radio, or the voice engine.
#pragma once

#include <array>

namespace orvelle {

constexpr const char* VoiceRecordType = "VOICE";

constexpr const char* RogerWilcoCom1Role = "RWCom1";
constexpr const char* RogerWilcoCom2Role = "RWCom2";
constexpr const char* TeamSpeakCom1Role = "TSCom1";
constexpr const char* TeamSpeakCom2Role = "TSCom2";
constexpr const char* EngineRole = "VVL";

inline constexpr std::array AllVoiceRoles{RogerWilcoCom1Role, RogerWilcoCom2Role, TeamSpeakCom1Role, TeamSpeakCom2Role,
                                          EngineRole};

}  // namespace orvelle
