// A set-up on three computers: c01, the simulator's, with the broker and whatever plays the simulator, and c02 and c03
// with panels. A further identity, c04, belongs to whoever wants it. What runs there ends with the test. The programs
// run on hosts that tests/hosts/with-hosts has made.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/mqtt/SetUpFile.h"
#include "adapters/mqtt/Topics.h"
#include "apps/UserStrokes.h"
#include "tests/hosts/PanelThere.h"
#include "tests/linux/XServer.h"

namespace orvelle::hosts {

constexpr const char* Role = "VVL";
constexpr long long Second = 1'000'000;  // microseconds

class HostsRig {
public:
    HostsRig();
    HostsRig(const HostsRig&) = delete;
    HostsRig& operator=(const HostsRig&) = delete;
    ~HostsRig();

    // The real program of the simulator's computer, which brings the broker, with a keyboard before it.
    void BringSimulator();
    void StartSimulator();
    pid_t BrokerOfSimulator() const;
    void PressTalkKey() { strokes->Press(TalkKeyCode); }
    void ReleaseTalkKey() { strokes->Release(TalkKeyCode); }
    // A broker by itself, and a simulator's program whose keys and session are played.
    void BringPlayedSimulator();
    void StartBroker();
    // A panel without windows; that of c01 runs beside the simulator.
    PanelThere& AddPanel(int identity);

    std::string SetUpFileOf(int identity) const;
    std::string DataOf(int identity) const { return (computers / mqtt::WriteIdentity(identity)).string(); }

    // Takes what the programs have told by now.
    void TakeAll();
    // Takes what the programs tell until it is so. False where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo);
    // Time by which something is shown that must not happen, or in which traffic goes on.
    void Let(long long microseconds);
    // The one record of the role that all of these panels know, at its own panel as an own one; 0 while they disagree.
    static Long Holder(const std::string& role, const std::vector<const PanelThere*>& panels);
    bool AllHave(Long id, const std::string& role = Role);
    // All panels know that one record, and have both links.
    bool IsAllRight(Long id) { return AllHave(id) && HaveLinks(); }
    bool HaveLinks();

    static constexpr const char* TalkKey = "F8";
    const Host one{1}, two{2}, three{3};
    std::list<PanelThere> panels;
    std::unique_ptr<linux::ChildProcess> broker;
    std::unique_ptr<linux::ChildProcess> simulator;
    std::unique_ptr<ProgramThere> played;

private:
    static constexpr int TalkKeyCode = 74;  // of an X server

    std::filesystem::path computers;  // a folder each
    std::unique_ptr<linux::XServer> keyboard;
    std::unique_ptr<UserStrokes> strokes;
};

class HostsTest : public testing::Test, public HostsRig {};

// A figure of the trial, for whoever reads the log.
void Print(const std::string& what, long long microseconds);

// What a process has in memory, in kilobytes; 0 where there is no such process.
long MemoryOf(pid_t process);
// Prints both, and fails where it has grown by more than its messages can account for.
void ExpectNoMoreMemory(const std::string& whose, long before, long after);

}  // namespace orvelle::hosts
