// What the heard voice engine costs a whole panel in memory beside the one that practises, for bench/voice-memory: a
// panel with the engine running and in three rooms, the middle one of some. Before the engine starts nothing of it is
// loaded.
//
//   orvelle-voice-memory             both, with a voice server and a sound server of its own; 1 where it is too much
//   orvelle-voice-memory ADDRESS     one panel, of whichever engine serves, in three channels of that server
#include <unistd.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "adapters/qt/services/Application.h"
#include "apps/PanelProgram.h"
#include "apps/ThisProcess.h"
#include "bench/ProcessFigures.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mumble/VoiceServerRig.h"

using namespace orvelle;

namespace {

constexpr double MostBeside = 8;  // MiB
// Which pages of libraries are mapped is the system's choice, and so differs from panel to panel.
constexpr std::size_t Panels = 5;

bool IsMapped(const std::string& library) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.find(library) != std::string::npos) return true;
    return false;
}

template <typename Condition>
void ServeUntil(Condition isSo) {
    while (!isSo()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Prints which engine it has, and its memory in MiB: proportional before; proportional, resident and its own in rooms.
int RunPanel(const std::string& address) {
    ThisProcess process;
    qt::Application application("orvelle-voice-memory", "xcb", [](const std::exception& error) {
        std::cerr << "orvelle-voice-memory: " << error.what() << std::endl;
        std::exit(EXIT_FAILURE);
    });
    const QTemporaryDir folder;
    auto house = std::make_unique<PanelProgram>(process, folder.filePath("settings.sqlite").toStdString());
    bool isOpen = false;
    house->Outside.WhenSoundIsKnown([&] {
        house->Open();
        isOpen = true;
    });
    ServeUntil([&] { return isOpen; });
    for (const char* const library : {"orvelle-voice.so", "libprotobuf", "libssl"})
        if (IsMapped(library)) {
            std::cerr << "orvelle-voice-memory: " << library << " is loaded before the engine starts\n";
            return EXIT_FAILURE;
        }
    const Memory before = ReadMemory(getpid());
    ends::VoiceEngineEnd& engine = house->Outside.Engine;
    engine.Start(EngineMode);
    ServeUntil([&] { return engine.Running(); });
    for (Long room = 0; room < Rooms; ++room) {
        engine.RoomJoin(room, "PILOT", address + "/memory" + std::to_string(room));
        engine.ChannelOutput(room, Headset, true);
    }
    ServeUntil([&] {
        int joined = 0;
        for (Long room = 0; room < Rooms; ++room) joined += engine.Room(room).Presence == RoomPresence::In;
        return joined == Rooms && engine.InputStatus();
    });
    const Memory after = ReadMemory(getpid());
    std::cout << IsMapped("orvelle-voice.so") << ' ' << before.Proportional << ' ' << after.Proportional << ' '
              << after.Resident << ' ' << after.Private << std::endl;
    return EXIT_SUCCESS;
}

struct PanelMemory {
    int IsHeard = 0;
    double Before = 0;
    Memory With;
};

PanelMemory MemoryOfPanel(const std::string& address) {
    linux::ChildProcess panel({"/proc/self/exe", address});
    std::istringstream line(panel.ReadLine());
    PanelMemory memory;
    line >> memory.IsHeard >> memory.Before >> memory.With.Proportional >> memory.With.Resident >> memory.With.Private;
    // An end without order would be told of by a window, which shares its libraries with the next panel.
    if (panel.Wait() != 0 || !line) {
        std::cerr << "orvelle-voice-memory: a panel failed: " << panel.Errors();
        std::exit(EXIT_FAILURE);
    }
    return memory;
}

// The one in the middle of some.
PanelMemory UsualMemoryOfPanel(const std::string& address) {
    std::vector<PanelMemory> panels;
    while (panels.size() < Panels) panels.push_back(MemoryOfPanel(address));
    std::ranges::sort(panels, {}, [](const PanelMemory& each) { return each.With.Proportional; });
    return panels[Panels / 2];
}

void Print(const char* name, const PanelMemory& memory) {
    std::printf("%-12s %12.1f %14.1f %10.1f %10.1f\n", name, memory.Before, memory.With.Proportional,
                memory.With.Resident, memory.With.Private);
}

}  // namespace

int main(int count, char** words) {
    if (count == 2) return RunPanel(words[1]);
    mumble::VoiceServerRig server;
    auto sounds = std::make_unique<heard::SoundOfComputers>(1);
    MemoryOfPanel(server.Address());  // the first one brings its libraries into the computer's memory
    const PanelMemory heard = UsualMemoryOfPanel(server.Address());
    sounds->Kill();
    const PanelMemory practised = UsualMemoryOfPanel(server.Address());
    std::printf("%-12s %12s %14s %10s %10s MiB\n", "engine", "PSS before", "in three rooms", "RSS", "its own");
    Print("heard", heard);
    Print("practised", practised);
    const double more = heard.With.Proportional - practised.With.Proportional;
    std::printf("the heard engine takes %.1f MiB more, %.1f of them its own; %.1f more are resident\n", more,
                heard.With.Private - practised.With.Private, heard.With.Resident - practised.With.Resident);
    return heard.IsHeard == 1 && practised.IsHeard == 0 && more <= MostBeside ? EXIT_SUCCESS : EXIT_FAILURE;
}
