#include <functional>
#include <memory>

#include "panel/FrmOrvelle.h"
#include "replay/Properties.h"
#include "replay/Value.h"

namespace orvelle::replay {

namespace {

std::string Printed(const std::unique_ptr<MediaPlayer>& player) { return player == nullptr ? "none" : "present"; }

template <typename T>
std::string Printed(const T& value) {
    return Value(value).Printed();
}

using Path = std::string;  // what stands behind the variable's name: "(0)", "(0).Server"

template <typename T>
std::optional<std::string> PrintedAt(const T& value, const Path& path) {
    return path.empty() ? std::optional(Printed(value)) : std::nullopt;
}

std::optional<std::string> PrintedAt(const VoiceRecord& record, const Path& path) {
    if (path == ".Software") return Printed(record.Software);
    if (path == ".Server") return Printed(record.Server);
    if (path == ".Channel") return Printed(record.Channel);
    if (path == ".LoginName") return Printed(record.LoginName);
    if (path == ".Password") return Printed(record.Password);
    return std::nullopt;
}

template <typename T, Long Size>
std::optional<std::string> PrintedAt(const CheckedArray<T, Size>& values, const Path& path) {
    for (Long index = 0; index < Size; ++index) {
        const std::string element = std::string("(").append(std::to_string(index)).append(")");
        if (path.starts_with(element)) return PrintedAt(values[index], path.substr(element.size()));
    }
    return std::nullopt;
}

template <typename T>
const T& Held(const FrmOrvelle& panel, T FrmOrvelle::*member) {
    return panel.*member;
}

template <typename T>
const T& Held(const FrmOrvelle& panel, T PanelVariables::*member) {
    return panel.Variables().*member;
}

template <auto Member>
std::optional<std::string> Read(const FrmOrvelle& panel, const Path& path) {
    return PrintedAt(Held(panel, Member), path);
}

struct Variable {
    std::string_view Name;
    std::optional<std::string> (*Read)(const FrmOrvelle& panel, const Path& path);
};

constexpr Variable Variables[] = {
    {"WMPCOM1", Read<&FrmOrvelle::WMPCOM1>},
    {"WMPCOM2", Read<&FrmOrvelle::WMPCOM2>},
    {"CurrentPanel", Read<&PanelVariables::CurrentPanel>},
    {"MultiplayerConnected", Read<&PanelVariables::MultiplayerConnected>},
    {"SessionHandle", Read<&PanelVariables::SessionHandle>},
    {"Callsign", Read<&PanelVariables::Callsign>},
    {"ReceiveSelect", Read<&PanelVariables::ReceiveSelect>},
    {"TransmitSelect", Read<&PanelVariables::TransmitSelect>},
    {"RadioVoice", Read<&PanelVariables::RadioVoice>},
    {"TransmitOff", Read<&PanelVariables::TransmitOff>},
    {"ReceiveOff", Read<&PanelVariables::ReceiveOff>},
    {"RoomPriority", Read<&PanelVariables::RoomPriority>},
    {"PriorityActive", Read<&PanelVariables::PriorityActive>},
    {"PriorityStamp", Read<&PanelVariables::PriorityStamp>},
    {"VVLRunning", Read<&PanelVariables::VVLRunning>},
    {"VVLTransmitting", Read<&PanelVariables::VVLTransmitting>},
    {"VVLPrivTransmitting", Read<&PanelVariables::VVLPrivTransmitting>},
    {"ActiveVoiceSoftware", Read<&PanelVariables::ActiveVoiceSoftware>},
    {"RWServer", Read<&PanelVariables::RWServer>},
    {"RWChannel", Read<&PanelVariables::RWChannel>},
    {"TSServer", Read<&PanelVariables::TSServer>},
    {"TSChannel", Read<&PanelVariables::TSChannel>},
    {"ATISSource", Read<&PanelVariables::ATISSource>},
    {"RWCom1", Read<&PanelVariables::RWCom1>},
    {"RWCom2", Read<&PanelVariables::RWCom2>},
    {"TSCom1", Read<&PanelVariables::TSCom1>},
    {"TSCom2", Read<&PanelVariables::TSCom2>},
    {"OwnVVL", Read<&PanelVariables::OwnVVL>},
    {"ForeignRWCom1", Read<&PanelVariables::ForeignRWCom1>},
    {"ForeignRWCom2", Read<&PanelVariables::ForeignRWCom2>},
    {"ForeignTSCom1", Read<&PanelVariables::ForeignTSCom1>},
    {"ForeignTSCom2", Read<&PanelVariables::ForeignTSCom2>},
    {"ForeignVVL", Read<&PanelVariables::ForeignVVL>},
    {"TSFSJoy", Read<&PanelVariables::TSFSJoy>},
    {"TSFSKey", Read<&PanelVariables::TSFSKey>},
    {"TSPTTKey", Read<&PanelVariables::TSPTTKey>},
    {"TSPTTKeyState", Read<&PanelVariables::TSPTTKeyState>},
    {"RWFSJoy", Read<&PanelVariables::RWFSJoy>},
    {"RWFSKey", Read<&PanelVariables::RWFSKey>},
    {"RWPTTKey", Read<&PanelVariables::RWPTTKey>},
    {"RWPTTKeyState", Read<&PanelVariables::RWPTTKeyState>},
    {"VVLFSJoy", Read<&PanelVariables::VVLFSJoy>},
    {"VVLFSKey", Read<&PanelVariables::VVLFSKey>},
    {"VVLPrivFSJoy", Read<&PanelVariables::VVLPrivFSJoy>},
    {"VVLPrivFSKey", Read<&PanelVariables::VVLPrivFSKey>},
    {"J2KJoy", Read<&PanelVariables::J2KJoy>},
    {"J2KKey", Read<&PanelVariables::J2KKey>},
    {"K2KFSKey", Read<&PanelVariables::K2KFSKey>},
    {"K2KKey", Read<&PanelVariables::K2KKey>},
};

}  // namespace

std::optional<std::string> VariableOf(const FrmOrvelle& panel, const std::string& name) {
    const std::string_view whole = std::string_view(name).substr(0, name.find_first_of("(."));
    for (const Variable& variable : Variables)
        if (whole == variable.Name) return variable.Read(panel, name.substr(whole.size()));
    return std::nullopt;
}

}  // namespace orvelle::replay
