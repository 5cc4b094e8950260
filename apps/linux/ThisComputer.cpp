// This computer where it runs Linux with an X server.
#include "apps/ThisComputer.h"

#include <QStandardPaths>
#include <QSysInfo>
#include <optional>

#include "adapters/linux/DesktopAutostart.h"
#include "adapters/linux/DynamicTeamSpeak.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/linux/LinuxProcesses.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/looks/Text.h"
#include "adapters/x11/Door.h"
#include "adapters/x11/KeyRepeat.h"
#include "apps/ThisProcess.h"
#include "platform/EventLoop.h"

namespace orvelle {

namespace {

// Whose entries the desktop starts with the session.
std::string AutostartFolder() {
    return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) + "/autostart";
}

}  // namespace

struct ThisComputer::Parts {
    Parts(EventLoop& loop, orvelle::Registry& keptRegistry)
        : Loop(loop),
          Keyboard(loop, "", linux::BesideOwnFile("orvelle-key-guard")),
          Autostart(keptRegistry, AutostartFolder()) {}

    EventLoop& Loop;
    linux::X11Keyboard Keyboard;
    linux::LinuxProcesses Processes{""};
    linux::DesktopAutostart Autostart;
    linux::DynamicTeamSpeak TeamSpeak;
    std::optional<orvelle::Door> Door;
    std::optional<linux::FileWatch> File;
    Ticket ReleaseAtEnd;
    Ticket ProcessesReady;
};

const char* const ThisComputer::DesktopName = "X11";

ThisComputer::ThisComputer(ThisProcess& process, EventLoop& loop, orvelle::Registry& keptRegistry)
    : parts(std::make_unique<Parts>(loop, keptRegistry)) {
    // A held key is then told from one that is struck again and again.
    TellRepeatsAsPresses();
    parts->ReleaseAtEnd = process.AtEnd([this] { parts->Keyboard.Keys.ReleaseAll(); });
    parts->Keyboard.Keys.Told = [this](const std::string& sentence) { Told(sentence); };
    parts->Keyboard.Keys.LimitTold = [this](const std::string& sentence) { KeysTold(sentence); };
    parts->Autostart.Told = [this](const std::string& sentence) { Told(sentence); };
    parts->Processes.Told = [this](const std::string& sentence) { ProgramTold(sentence); };
    parts->ProcessesReady = loop.WhenReadable(parts->Processes.Descriptor(), [this] { parts->Processes.Serve(); });
}

ThisComputer::~ThisComputer() = default;

void ThisComputer::Begin() { parts->Keyboard.Keys.Begin(); }
orvelle::Keyboard& ThisComputer::Keyboard() { return parts->Keyboard; }
HeldKeysSide& ThisComputer::HeldKeys() { return parts->Keyboard; }
bool ThisComputer::HoldsKey(int nativeScanCode) const { return parts->Keyboard.Keys.Holds(nativeScanCode); }
orvelle::Processes& ThisComputer::Processes() { return parts->Processes; }
orvelle::Registry& ThisComputer::Registry() { return parts->Autostart; }
TeamSpeakRemote* ThisComputer::TeamSpeak() { return parts->TeamSpeak.IsThere() ? &parts->TeamSpeak : nullptr; }
std::string ThisComputer::Name() const { return FromQt(QSysInfo::machineHostName()); }
void ThisComputer::WatchFile(const std::string& file) {
    parts->File.emplace(parts->Loop, file);
    parts->File->Changed = [this] { FileChanged(); };
}

void ThisComputer::OpenDoor(const WindowTable& table, Control& control) { parts->Door.emplace(table, control); }

}  // namespace orvelle
