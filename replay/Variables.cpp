#include <array>
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

template <typename T, std::size_t Size>
std::optional<std::string> PrintedAt(const std::array<T, Size>& values, const Path& path) {
    for (std::size_t index = 0; index < Size; ++index) {
        const Path element = "(" + std::to_string(index) + ")";
        if (path.starts_with(element)) return PrintedAt(values[index], path.substr(element.size()));
    }
    return std::nullopt;
}

template <auto Member>
std::optional<std::string> Read(const FrmOrvelle& panel, const Path& path) {
    return PrintedAt(panel.*Member, path);
}

struct Variable {
    std::string_view Name;
    std::optional<std::string> (*Read)(const FrmOrvelle& panel, const Path& path);
};

constexpr Variable Variables[] = {
    {"WMPCOM1", Read<&FrmOrvelle::WMPCOM1>},
    {"WMPCOM2", Read<&FrmOrvelle::WMPCOM2>},
    {"CurrentPanel", Read<&FrmOrvelle::CurrentPanel>},
    {"MultiplayerConnected", Read<&FrmOrvelle::MultiplayerConnected>},
    {"SessionHandle", Read<&FrmOrvelle::SessionHandle>},
    {"Callsign", Read<&FrmOrvelle::Callsign>},
    {"ReceiveSelect", Read<&FrmOrvelle::ReceiveSelect>},
    {"TransmitSelect", Read<&FrmOrvelle::TransmitSelect>},
    {"RadioVoice", Read<&FrmOrvelle::RadioVoice>},
    {"TransmitOff", Read<&FrmOrvelle::TransmitOff>},
    {"ReceiveOff", Read<&FrmOrvelle::ReceiveOff>},
    {"RoomPriority", Read<&FrmOrvelle::RoomPriority>},
    {"PriorityActive", Read<&FrmOrvelle::PriorityActive>},
    {"PriorityStamp", Read<&FrmOrvelle::PriorityStamp>},
    {"VVLRunning", Read<&FrmOrvelle::VVLRunning>},
    {"VVLTransmitting", Read<&FrmOrvelle::VVLTransmitting>},
    {"VVLPrivTransmitting", Read<&FrmOrvelle::VVLPrivTransmitting>},
    {"ActiveVoiceSoftware", Read<&FrmOrvelle::ActiveVoiceSoftware>},
    {"RWServer", Read<&FrmOrvelle::RWServer>},
    {"RWChannel", Read<&FrmOrvelle::RWChannel>},
    {"TSServer", Read<&FrmOrvelle::TSServer>},
    {"TSChannel", Read<&FrmOrvelle::TSChannel>},
    {"ATISSource", Read<&FrmOrvelle::ATISSource>},
    {"RWCom1", Read<&FrmOrvelle::RWCom1>},
    {"RWCom2", Read<&FrmOrvelle::RWCom2>},
    {"TSCom1", Read<&FrmOrvelle::TSCom1>},
    {"TSCom2", Read<&FrmOrvelle::TSCom2>},
    {"OwnVVL", Read<&FrmOrvelle::OwnVVL>},
    {"ForeignRWCom1", Read<&FrmOrvelle::ForeignRWCom1>},
    {"ForeignRWCom2", Read<&FrmOrvelle::ForeignRWCom2>},
    {"ForeignTSCom1", Read<&FrmOrvelle::ForeignTSCom1>},
    {"ForeignTSCom2", Read<&FrmOrvelle::ForeignTSCom2>},
    {"ForeignVVL", Read<&FrmOrvelle::ForeignVVL>},
    {"TSFSJoy", Read<&FrmOrvelle::TSFSJoy>},
    {"TSFSKey", Read<&FrmOrvelle::TSFSKey>},
    {"TSPTTKey", Read<&FrmOrvelle::TSPTTKey>},
    {"TSPTTKeyState", Read<&FrmOrvelle::TSPTTKeyState>},
    {"RWFSJoy", Read<&FrmOrvelle::RWFSJoy>},
    {"RWFSKey", Read<&FrmOrvelle::RWFSKey>},
    {"RWPTTKey", Read<&FrmOrvelle::RWPTTKey>},
    {"RWPTTKeyState", Read<&FrmOrvelle::RWPTTKeyState>},
    {"VVLFSJoy", Read<&FrmOrvelle::VVLFSJoy>},
    {"VVLFSKey", Read<&FrmOrvelle::VVLFSKey>},
    {"VVLPrivFSJoy", Read<&FrmOrvelle::VVLPrivFSJoy>},
    {"VVLPrivFSKey", Read<&FrmOrvelle::VVLPrivFSKey>},
    {"J2KJoy", Read<&FrmOrvelle::J2KJoy>},
    {"J2KKey", Read<&FrmOrvelle::J2KKey>},
    {"K2KFSKey", Read<&FrmOrvelle::K2KFSKey>},
    {"K2KKey", Read<&FrmOrvelle::K2KKey>},
};

}  // namespace

std::optional<std::string> VariableOf(const FrmOrvelle& panel, const std::string& name) {
    const std::string_view whole = std::string_view(name).substr(0, name.find_first_of("(."));
    for (const Variable& variable : Variables)
        if (whole == variable.Name) return variable.Read(panel, name.substr(whole.size()));
    return std::nullopt;
}

}  // namespace orvelle::replay
