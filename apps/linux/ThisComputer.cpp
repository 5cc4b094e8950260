// This computer where it runs Linux with an X server.
#include "apps/ThisComputer.h"

#include <QSysInfo>
#include <optional>

#include "adapters/linux/BaseFolders.h"
#include "adapters/linux/DesktopAutostart.h"
#include "adapters/linux/DynamicTeamSpeak.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/linux/InstalledPrograms.h"
#include "adapters/linux/LinuxProcesses.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/looks/Text.h"
#include "adapters/x11/Door.h"
#include "adapters/x11/KeyRepeat.h"
#include "apps/ThisProcess.h"
#include "platform/EventLoop.h"

namespace orvelle {

struct ThisComputer::Parts {
    Parts(ThisProcess& process, EventLoop& loop, orvelle::Registry& keptRegistry)
        : Loop(loop),
          Keyboard(loop, "", linux::OwnProgram("orvelle-key-guard"), process.LastWord()),
          Folders(linux::BaseFolders::OfThisUser()),
          Installed(keptRegistry, Folders),
          Autostart(Installed, Folders.Configuration.front() / "autostart") {}

    EventLoop& Loop;
    linux::X11Keyboard Keyboard;
    linux::LinuxProcesses Processes{""};
    linux::BaseFolders Folders;
    linux::InstalledPrograms Installed;
    linux::DesktopAutostart Autostart;
    linux::DynamicTeamSpeak TeamSpeak;
    std::optional<orvelle::Door> Door;
    std::optional<linux::FileWatch> File;
    Ticket ReleaseAtEnd;
    Ticket ProcessesReady;
};

const char* const ThisComputer::DesktopName = "X11";

ThisComputer::ThisComputer(ThisProcess& process, EventLoop& loop, orvelle::Registry& keptRegistry)
    : parts(std::make_unique<Parts>(process, loop, keptRegistry)) {
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
