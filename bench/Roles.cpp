// orvelle-roles [RUNS]: ten computers that want all five voice duties each are killed and started again at one moment,
// over a real broker on this computer; printed is the time until each duty has exactly one holder for good. Each is a
// process with the panel's own logic, near end and line, and nothing else outside. Fails where they don't agree within
// half a minute. Needs no display.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/SimulatorAtBroker.h"
#include "bench/FrameworkPanel.h"
#include "bench/SilentPeers.h"
#include "panel/FrmOrvelle.h"
#include "platform/VoiceRoles.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Computers = 10;
constexpr Long LongestWait = 30'000;  // milliseconds
// In which nothing may change any more: longer than a beat, a lease and the grace for known records
constexpr Long Proof = 6000;

class WantsAllDuties : public SilentStore {
public:
    Long GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) override {
        const bool isWanted = key == "RWEnable" || key == "TSEnable" || key == "VVLEnable";
        return isWanted ? 1 : SilentStore::GetSettingLong(section, key, defaultValue);
    }
};

// Until it is killed.
int PlayPanel(const mqtt::SetUpSetting& setUp) {
    linux::PollEventLoop loop;
    FrameworkPanel link(loop, setUp);
    WantsAllDuties settings;
    SilentPeers peers;
    FrmOrvelle panel(peers.Outside(settings, peers.Registry, link.End));
    panel.Show();
    loop.Run();
    return 0;
}

// What the simulator's computer sees of the others.
class Watch {
public:
    explicit Watch(const mqtt::SetUpSetting& setUp)
        : simulator(loop, [] { return mqtt::PresenceSetting{.Name = "SIM", .Address = "", .Desktop = "none"}; }) {
        simulator.Offer(&mqtt::PresenceSetting::OffersFramework, true);
        simulator.Open(setUp);
    }

    // The seconds from `begin` until they agree for good; nothing where they don't.
    std::optional<double> UntilAgreed(Clock::time_point begin) {
        std::optional<Clock::time_point> agreed;
        Ticket proof;
        const Ticket watch = simulator.Observe([&] {
            const bool agree = Agree();
            if (agree == agreed.has_value()) return;
            agreed = agree ? std::optional(Clock::now()) : std::nullopt;
            proof = agree ? loop.After(Proof, [this] { loop.Stop(); }) : Ticket();
        });
        const Ticket patience = loop.After(LongestWait, [this] { loop.Stop(); });
        loop.Run();
        if (!agreed) return std::nullopt;
        return std::chrono::duration<double>(*agreed - begin).count();
    }

    std::string Holders() const {
        std::string text;
        for (const auto& [id, content] : simulator.Records())
            text += ' ' + content.Role + '=' + mqtt::WriteIdentity(mqtt::IdentityOf(id));
        return text + ", " + std::to_string(PanelsThere()) + " panels";
    }

private:
    bool Agree() const {
        std::map<std::string, int> holders;
        for (const auto& [id, content] : simulator.Records()) ++holders[content.Role];
        const bool isEachHeld = std::ranges::all_of(
            AllVoiceRoles, [&](const char* role) { return holders.contains(role) && holders[role] == 1; });
        return isEachHeld && PanelsThere() == Computers;
    }

    int PanelsThere() const {
        int there = 0;
        for (int identity = 1; identity <= Computers; ++identity)
            if (simulator.Others().IsThere({identity, mqtt::Program::Panel})) ++there;
        return there;
    }

    linux::PollEventLoop loop;
    mqtt::SimulatorAtBroker simulator;
};

bool Measure(const std::string& self, int runs) {
    const mqtt::BrokerProcess broker;
    Watch watch(broker.SetUpOf(1));
    std::list<linux::ChildProcess> panels;
    std::vector<double> seconds;
    // The first is no restart and counts for nothing.
    for (int run = 0; run <= runs; ++run) {
        for (linux::ChildProcess& panel : panels) panel.Kill(SIGKILL);
        panels.clear();
        const auto begin = Clock::now();
        for (int identity = 1; identity <= Computers; ++identity)
            panels.emplace_back(std::vector<std::string>{self, "panel", mqtt::WriteSetUp(broker.SetUpOf(identity))});
        const std::optional<double> taken = watch.UntilAgreed(begin);
        if (!taken) {
            std::cerr << "orvelle-roles: they don't agree:" << watch.Holders() << "\n";
            return false;
        }
        if (run == 0) continue;
        std::printf("%.2f s:%s\n", *taken, watch.Holders().c_str());
        seconds.push_back(*taken);
    }
    std::ranges::sort(seconds);
    std::printf("until each duty has one holder: least %.2f, median %.2f, greatest %.2f s\n", seconds.front(),
                seconds[seconds.size() / 2], seconds.back());
    return true;
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 2 && arguments[0] == "panel")
        return orvelle::PlayPanel(*orvelle::mqtt::ReadSetUp(arguments[1]));
    return orvelle::Measure(argv[0], arguments.empty() ? 5 : std::max(1, std::stoi(arguments[0]))) ? 0 : 1;
}
