#include "tests/hosts/HostsRig.h"

#include <poll.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>

#include "adapters/mqtt/OwnSetUp.h"

namespace orvelle::hosts {

namespace {

constexpr int Identities = 4;

}  // namespace

HostsRig::HostsRig() {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-hosts-XXXXXX";
    computers = mkdtemp(pattern.data());
    const mqtt::OwnSetUp setUp(DataOf(1));
    EXPECT_EQ(setUp.ReadOrMake("Hosts", 0).Sentence, "");
    while (const auto code = setUp.Add().Code) {
        const mqtt::SetUpSetting joined{"Hosts", one.Address(), mqtt::UsualPort, code->Number, code->Key};
        EXPECT_EQ(mqtt::WriteSetUpFile(SetUpFileOf(code->Number), joined), "");
        if (code->Number == Identities) break;
    }
    EXPECT_EQ(setUp.JoinThisComputer(*setUp.Read().Setting, "localhost", mqtt::UsualPort), "");
}

HostsRig::~HostsRig() {
    panels.clear();
    played.reset();
    simulator.reset();
    broker.reset();
    std::filesystem::remove_all(computers);
}

std::string HostsRig::SetUpFileOf(int identity) const { return DataOf(identity) + "/setup.json"; }

void HostsRig::BringSimulator() {
    keyboard = std::make_unique<linux::XServer>();
    strokes = std::make_unique<UserStrokes>(keyboard->Display());
    StartSimulator();
}

void HostsRig::StartSimulator() {
    simulator = std::make_unique<linux::ChildProcess>(
        one.Start({"env", "DISPLAY=" + keyboard->Display(), SIMULATOR_PROGRAM, "--no-window", "--data", DataOf(1)}));
}

pid_t HostsRig::BrokerOfSimulator() const {
    const std::string process = std::to_string(simulator->Id());
    std::ifstream children("/proc/" + process + "/task/" + process + "/children");
    pid_t child = 0;
    children >> child;
    return child;
}

void HostsRig::BringPlayedSimulator() {
    StartBroker();
    played = std::make_unique<ProgramThere>(one, std::vector<std::string>{SIMULATOR_AT_HOST, SetUpFileOf(1)});
}

void HostsRig::StartBroker() {
    broker = std::make_unique<linux::ChildProcess>(
        one.Start({"/usr/sbin/mosquitto", "-c", DataOf(1) + "/broker/mosquitto.conf"}));
}

PanelThere& HostsRig::AddPanel(int identity) { return panels.emplace_back(Host(identity), SetUpFileOf(identity)); }

void HostsRig::TakeAll() {
    for (PanelThere& panel : panels) panel.Take();
    if (played) played->Take();
}

bool HostsRig::Until(const std::function<bool()>& isSo) {
    const long long end = Now() + 30 * Second;
    for (;;) {
        std::vector<pollfd> awaited;
        for (const PanelThere& panel : panels) awaited.push_back({panel.Process.Output(), POLLIN, 0});
        TakeAll();
        if (isSo()) return true;
        if (Now() > end) {
            for (const PanelThere& panel : panels) std::cout << "    a panel told last:" << panel.LastTold() << '\n';
            return false;
        }
        poll(awaited.data(), awaited.size(), 5);
    }
}

void HostsRig::Let(long long microseconds) {
    const long long end = Now() + microseconds;
    Until([&] { return Now() >= end; });
}

Long HostsRig::Holder(const std::string& role, const std::vector<const PanelThere*>& panels) {
    std::set<Long> ids;
    for (const PanelThere* const panel : panels) {
        const std::set<Long> known = panel->Holders(role);
        if (known.size() != 1) return 0;
        ids.insert(*known.begin());
    }
    return ids.size() == 1 ? *ids.begin() : 0;
}

bool HostsRig::AllHave(Long id, const std::string& role) {
    return std::ranges::all_of(panels,
                               [&](const PanelThere& panel) { return panel.Holders(role) == std::set<Long>{id}; });
}

bool HostsRig::HaveLinks() {
    return std::ranges::all_of(panels, [](const PanelThere& panel) { return panel.HasLinks(); });
}

void Print(const std::string& what, long long microseconds) {
    std::printf("    %-60s %8.1f ms\n", what.c_str(), static_cast<double>(microseconds) / 1000);
    std::fflush(stdout);
}

long MemoryOf(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
    return 0;
}

void ExpectNoMoreMemory(const std::string& whose, long before, long after) {
    std::printf("    memory of %s: %ld kB before, %ld kB after\n", whose.c_str(), before, after);
    EXPECT_LT(after, before + 32 * 1024) << whose;
}

}  // namespace orvelle::hosts
