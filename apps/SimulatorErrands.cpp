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

// A name is another computer's word: it must not end a line or a column, or speak to the terminal.
std::string Printable(std::string name) {
    for (char& character : name)
        if (static_cast<unsigned char>(character) < ' ' || character == '\x7F') character = ' ';
    return name.empty() ? "-" : name;
}

int List(const mqtt::OwnSetUp& setUp) {
    const auto [setting, sentence] = setUp.Read();
    if (!setting) return Fail(sentence.empty() ? "This computer has made no set-up yet." : sentence);
    const auto own = setUp.OfThisComputer(*setting);
    const std::map<int, std::string> present = own ? Present(*own) : std::map<int, std::string>{};
    for (const auto& [identity, key] : setting->Keys) {
        const auto found = present.find(identity);
        std::cout << mqtt::WriteIdentity(identity)
                  << (found == present.end() ? "\t-\taway" : "\t" + Printable(found->second) + "\tthere") << "\n";
    }
    return EXIT_SUCCESS;
}

int Add(const mqtt::OwnSetUp& setUp) {
    const auto [code, sentence] = setUp.Add();
    if (!code) return Fail(sentence);
    std::cout << mqtt::WriteJoinCode(*code) << "\n";
    return EXIT_SUCCESS;
}

int Remove(const mqtt::OwnSetUp& setUp, int identity) {
    const std::string sentence = setUp.Remove(identity);
    return sentence.empty() ? EXIT_SUCCESS : Fail(sentence);
}

}  // namespace

int RunErrand(const SimulatorCommand& command) {
    const mqtt::OwnSetUp setUp(command.Data);
    if (command.What == SimulatorCommand::Task::Add) return Add(setUp);
    if (command.What == SimulatorCommand::Task::Remove) return Remove(setUp, command.Identity);
    return List(setUp);
}

}  // namespace orvelle
