#include "apps/SimulatorErrands.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <map>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/Topics.h"
#include "apps/ComputerName.h"
#include "apps/DirectoryCheck.h"
#include "apps/FlightGearErrand.h"
#include "apps/OneLine.h"
#include "apps/SimulatorProgram.h"

namespace orvelle {

namespace {

constexpr Long Patience = 3000;  // milliseconds for the broker to tell who is there

int Fail(const std::string& sentence) {
    std::cerr << "orvelle-sim: " << sentence << "\n";
    return EXIT_FAILURE;
}

// The names of the computers that are there, as the broker keeps them. Nobody is there where there is no broker. It is
// a visit under a name of its own, which ends no other connection; what is published comes back after what was kept.
std::map<int, std::string> Present(const mqtt::SetUpSetting& own) {
    linux::PollEventLoop loop;
    mqtt::BrokerConnection visit(loop);
    std::map<int, std::string> names;
    const std::string identity = mqtt::WriteIdentity(own.Identity);
    const std::string back = "orvelle/1/" + identity + "/list";
    const Ticket patience = loop.After(Patience, [&] { loop.Stop(); });
    visit.Up = [&] { visit.Publish({.Topic = back, .Payload = "1"}); };
    visit.Failed = [&](mqtt::BrokerTrouble) { loop.Stop(); };
    visit.Heard = [&](const std::string& text, const std::string& payload) {
        if (text == back) return loop.Stop();
        const auto topic = mqtt::ReadTopic(text);
        const auto presence = mqtt::ReadPresence(payload);
        if (topic && presence) names.emplace(topic->Identity, presence->Name);
    };
    visit.Open({.Access = {own.Host, own.Port, identity, mqtt::WriteKey(own.Key)},
                .ClientId = identity + ".list." + std::to_string(getpid()),
                .WillTopic = "",
                .Subscriptions = {{"orvelle/1/+/+/presence", 1}, {back, 1}}});
    loop.Run();
    return names;
}

int Print(const char* text) {
    std::cout << text;
    return EXIT_SUCCESS;
}

void Print(int identity, const std::string* name) {
    std::cout << mqtt::WriteIdentity(identity) << "\t" << (name && !name->empty() ? OneLine(*name) : "-") << "\t"
              << (name ? "there" : "away") << "\n";
}

// For a person alone: scripts read a computer a line.
void PrintName(const std::string& setUp) {
    if (isatty(STDOUT_FILENO) != 0) std::cout << "Set-up " << OneLine(setUp) << "\n";
}

int List(const mqtt::OwnSetUp& setUp) {
    // All that another one's set-up tells of its computers is which are there.
    if (const auto joined = setUp.JoinedElsewhere()) {
        PrintName(joined->Name);
        for (const auto& [identity, name] : Present(*joined)) Print(identity, &name);
        return EXIT_SUCCESS;
    }
    const auto [setting, sentence] = setUp.Read();
    if (!setting) return Fail(sentence.empty() ? "This computer has made no set-up yet." : sentence);
    const auto own = setUp.OfThisComputer(*setting);
    const std::map<int, std::string> present = own ? Present(*own) : std::map<int, std::string>{};
    PrintName(setting->Name);
    for (const auto& [identity, key] : setting->Keys) {
        const auto found = present.find(identity);
        Print(identity, found == present.end() ? nullptr : &found->second);
    }
    return EXIT_SUCCESS;
}

// The first code may be asked for before the simulator's program was ever started. "" for success.
std::string MakeWhereMissing(const mqtt::OwnSetUp& setUp, int port) {
    if (std::filesystem::exists(setUp.File())) return "";
    if (std::string sentence = setUp.MakeFolder(); !sentence.empty()) return sentence;
    return setUp.ReadOrMake(ComputerName(), port).Sentence;
}

int Add(const mqtt::OwnSetUp& setUp) {
    const auto [code, sentence] = setUp.Add();
    if (!code) return Fail(sentence);
    std::cout << mqtt::WriteJoinCode(*code) << "\n";
    return EXIT_SUCCESS;
}

int EndFor(const std::string& sentence) { return sentence.empty() ? EXIT_SUCCESS : Fail(sentence); }

}  // namespace

int RunErrand(const SimulatorCommand& command) {
    using Task = SimulatorCommand::Task;
    if (command.What == Task::Help) return Print(SimulatorCommand::Help());
    if (command.What == Task::Version) return Print("orvelle-sim " ORVELLE_VERSION "\n");
    if (command.What == Task::Check) return CheckDirectories(command.Files);
    if (command.IsOfFlightGear()) return RunFlightGearErrand(command);
    const mqtt::OwnSetUp setUp(command.Data);
    const bool changes = command.What != Task::List || !command.Name.empty();
    if (const auto joined = setUp.JoinedElsewhere(); joined && changes)
        return Fail("This computer belongs to the set-up \"" + OneLine(joined->Name) +
                    "\" of another one; that is changed on the computer that made it.");
    if (command.What == Task::Add)
        if (const std::string sentence = MakeWhereMissing(setUp, command.Port); !sentence.empty())
            return Fail(sentence);
    if (!command.Name.empty())
        if (const std::string sentence = setUp.Rename(command.Name); !sentence.empty()) return Fail(sentence);
    if (command.What == Task::Add) return Add(setUp);
    if (command.What == Task::Remove) return EndFor(setUp.Remove(command.Identity));
    return command.What == Task::List ? List(setUp) : EXIT_SUCCESS;
}

bool IsServed(const SimulatorCommand& command) {
    return std::filesystem::exists(mqtt::OwnSetUp(command.Data).Folder()) && !ServingLock(command).Take();
}

}  // namespace orvelle
