#include "tests/fuzz/Invariants.h"

#include <sstream>

#include "panel/FrmOrvelle.h"

namespace orvelle::fuzz {

namespace {

bool StartsWith(const std::string& line, const std::string& beginning) { return line.rfind(beginning, 0) == 0; }

bool EndsWith(const std::string& line, const std::string& ending) {
    return line.size() >= ending.size() && line.compare(line.size() - ending.size(), ending.size(), ending) == 0;
}

std::vector<std::string> LinesOf(const std::string& calls) {
    std::vector<std::string> lines;
    std::istringstream stream(calls);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// The strokes of a sequence as the transcript shows them, where each key's virtual key and scan byte are known.
std::string Strokes(const std::string& sequence, int flags) {
    std::ostringstream strokes;
    std::istringstream codes(sequence);
    for (std::string code; std::getline(codes, code, '+');)
        strokes << "user32.MapVirtualKeyA(" << code << ", 3) -> " << code << "\nuser32.keybd_event(" << code << ", "
                << std::stoi(code) % 256 << ", " << flags << ", 0)\n";
    return strokes.str();
}

}  // namespace

std::optional<std::string> Invariants::Check(const replay::Stage& stage, const std::string& calls) {
    const FrmOrvelle& panel = stage.Panel.Panel();
    const PanelVariables& known = panel.Variables();
    const std::vector<std::string> lines = LinesOf(calls);
    if (auto breach = CheckBrackets(lines)) return breach;
    if (auto breach = CheckRogerWilco(panel, lines)) return breach;
    const bool teamSpeakActive =
        known.ActiveVoiceSoftware == TeamSpeakHost || known.ActiveVoiceSoftware == TeamSpeakUrl;
    if (!teamSpeakActive && !(known.TSServer.empty() && known.TSChannel.empty()))
        return "TeamSpeak is not active, and its server or channel is still remembered";
    const TalkKey rogerWilcoNow{known.RWPTTKey, known.RWPTTKeyState};
    const TalkKey teamSpeakNow{known.TSPTTKey, known.TSPTTKeyState};
    if (auto breach = CheckTalkKey(rogerWilco, rogerWilcoNow, calls)) return "RogerWilco's talk key: " + *breach;
    if (auto breach = CheckTalkKey(teamSpeak, teamSpeakNow, calls)) return "TeamSpeak's talk key: " + *breach;
    rogerWilco = rogerWilcoNow;
    teamSpeak = teamSpeakNow;
    if (auto breach = CheckTimers(panel)) return breach;
    if (auto breach = CheckRowNumbers(stage, "OrvelleCP\\Joy2Key", panel.ListJoyToKey.Count())) return breach;
    return CheckRowNumbers(stage, "OrvelleCP\\Key2Key", panel.ListKeyToKey.Count());
}

// A session or a record is open only within the handler that opened it, and one at a time. A record may be closed once
// more than it was opened.
std::optional<std::string> Invariants::CheckBrackets(const std::vector<std::string>& lines) {
    bool session = false;
    bool record = false;
    for (const std::string& line : lines) {
        if (StartsWith(line, "Tessaly.OpenSession(") && EndsWith(line, "-> True")) {
            if (session) return "a session was opened while one was open";
            session = true;
        } else if (line == "Tessaly.CloseSession()") {
            if (!session) return "a session was closed that was not open";
            session = false;
        } else if ((StartsWith(line, "Tessaly.OpenInterface(") && EndsWith(line, "-> True")) ||
                   (StartsWith(line, "Tessaly.CreateInterface(") && !EndsWith(line, "-> 0"))) {
            if (record) return "a record was opened while one was open";
            record = true;
        } else if (line == "Tessaly.CloseInterface()") {
            record = false;
        }
    }
    if (session) return "a session was left open";
    if (record) return "a record was left open";
    return std::nullopt;
}

std::optional<std::string> Invariants::CheckRogerWilco(const FrmOrvelle& panel, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        if (!StartsWith(line, "kernel32.WinExec(")) continue;
        if (line.find(" /join1 ") != std::string::npos) rogerWilcoJoined = true;
        if (line.find(" /leave ") != std::string::npos) rogerWilcoJoined = false;
    }
    if (panel.Variables().ActiveVoiceSoftware != RogerWilco && rogerWilcoJoined)
        return "RogerWilco was not told to leave";
    return std::nullopt;
}

std::optional<std::string> Invariants::CheckTalkKey(const TalkKey& before, const TalkKey& now,
                                                    const std::string& calls) {
    if (!now.State.empty() && now.State != "DOWN") return "its state is " + now.State;
    if (before.State == now.State || before.Sequence != now.Sequence) return std::nullopt;
    const bool wentDown = now.State == "DOWN";
    if (calls.find(Strokes(now.Sequence, wentDown ? 1 : 3)) == std::string::npos)
        return std::string("its state says ") + (wentDown ? "down" : "up") + ", and no such stroke was sent";
    return std::nullopt;
}

std::optional<std::string> Invariants::CheckTimers(const FrmOrvelle& panel) {
    if (panel.Timer1.Enabled) return "the media players are polled";
    if (panel.TimerDeviceStatus.Enabled == panel.VVLCalibrate.Enabled())
        return "the device status is polled while the engine does not run, or is not while it does";
    return std::nullopt;
}

std::optional<std::string> Invariants::CheckRowNumbers(const replay::Stage& stage, const std::string& section,
                                                       Long rows) {
    for (Long row = 1; row <= rows; ++row)
        if (!stage.Outside.Store.Find(section + "\\" + std::to_string(row), "Toggle"))
            return section + " has no row " + std::to_string(row);
    if (stage.Outside.Store.Find(section + "\\" + std::to_string(rows + 1), "Toggle"))
        return section + " has a row too many";
    return std::nullopt;
}

}  // namespace orvelle::fuzz
