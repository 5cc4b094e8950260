#include "apps/SimulatorProgram.h"

#include <algorithm>
#include <utility>

#include "adapters/mqtt/BrokerTroubles.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/shared/Environment.h"
#include "apps/AskedSounds.h"
#include "apps/ComputerName.h"

namespace orvelle {

namespace {

std::string DesktopName() { return Variable("XDG_SESSION_TYPE"); }

std::vector<std::string> ProgramsOf(const simulators::SimulatorChoice& choice) {
    std::vector<std::string> all;
    for (const simulators::SimulatorSource* const source : choice.All())
        for (std::string& program : source->Programs()) all.push_back(std::move(program));
    return all;
}

}  // namespace

linux::InstanceLock ServingLock(const SimulatorCommand& command) {
    return {mqtt::OwnSetUp(command.Data).Folder().string(), "orvelle-sim"};
}

SimulatorProgram::SimulatorProgram(EventLoop& eventLoop, const SimulatorCommand& asked)
    : loop(eventLoop),
      SetUp(asked.Data),
      AtBroker(eventLoop,
               [] { return mqtt::PresenceSetting{.Name = ComputerName(), .Address = "", .Desktop = DesktopName()}; }),
      Parts(eventLoop, asked.Data, asked.FlightGearPort, Network),
      Devices(eventLoop, Simulator,
              {.Simulators = ProgramsOf(Parts.Choice), .SessionType = DesktopName(), .Sounds = OwnSounds()}),
      command(asked),
      lock(ServingLock(asked)) {
    Simulator.SetLink(LinkState::Up);
    Network.SetLink(LinkState::Up);
    reached = AtBroker.Reached.Attach([this] { troubles->Reach({member->Host, member->Port}); });
    failed = AtBroker.Failed.Attach([this](mqtt::BrokerTrouble why) {
        IsOwnBrokersEnd(why) ? troubles->Rest() : troubles->Fail(why, {member->Host, member->Port});
    });
    heard = AtBroker.DirectoryHeard.Attach([this](int identity, const std::string& name, const std::string& text) {
        Parts.Topics.Hear(mqtt::WriteIdentity(identity), name, text);
    });
}

std::string SimulatorProgram::Open() {
    if (std::string sentence = SetUp.MakeFolder(); !sentence.empty()) return sentence;
    if (!lock.Take()) return "Another orvelle-sim serves this set-up already.";
    const std::optional<mqtt::SetUpSetting> joined = command.Own ? std::nullopt : SetUp.JoinedElsewhere();
    if (joined && (command.Broker || command.Port != 0 || !command.Name.empty()))
        return "This computer belongs to the set-up \"" + joined->Name +
               "\" of another one, which decides on its name and broker; --own makes or serves one of its own.";
    if (joined)
        GoTo(*joined);
    else if (std::string sentence = ServeOwn(); !sentence.empty())
        return sentence;
    watch.emplace(loop, SetUp.PanelFile());
    watch->Changed = [this] { TakeUpFile(); };
    if (!lock.Problem().empty()) Told(lock.Problem());
    Devices.Changed = [this] { TellOfDevices(); };
    Devices.SimulatorChanged = [this] { Parts.Choice.Activate(Devices.LastSimulator()); };
    TellOfDevices();
    Parts.Choice.Activate(Devices.LastSimulator());
    Parts.Told = [this](const std::string& sentence) { Told(sentence); };
    Parts.TellTroubles();
    return "";
}

void SimulatorProgram::Close() {
    watch.reset();
    AtBroker.Close();
    own.reset();
}

std::string SimulatorProgram::Trouble() const {
    const mqtt::BrokerTrouble trouble = AtBroker.Trouble();
    if (!member || AtBroker.IsThere() || trouble == mqtt::BrokerTrouble::None || IsOwnBrokersEnd(trouble)) return "";
    return mqtt::SentenceOf(trouble, {member->Host, member->Port}, member->Identity, mqtt::KeyFrom::SetUpFile);
}

// That is told by itself.
bool SimulatorProgram::IsOwnBrokersEnd(mqtt::BrokerTrouble why) const {
    return own && own->BringsBroker() && why == mqtt::BrokerTrouble::Unreachable;
}

std::string SimulatorProgram::ServeOwn() {
    own.emplace(loop, SetUp, command);
    own->Served = [this] {
        if (!member) GoTo(own->ThisComputer());
    };
    own->Changed = [this] { SetUpChanged(); };
    own->Told = [this](const std::string& sentence) { Told(sentence); };
    own->GaveUp = [this](const std::string& sentence) { Ends(sentence); };
    std::string sentence = own->Open(ComputerName());
    SetUpChanged();
    return sentence;
}

void SimulatorProgram::GoTo(const mqtt::SetUpSetting& setUp) {
    member = setUp;
    troubles.emplace(loop, 0);
    troubles->Told = [this](mqtt::BrokerTrouble why, const HostAndPort& place) {
        Told(mqtt::SentenceOf(why, place, member->Identity, mqtt::KeyFrom::SetUpFile));
    };
    troubles->Over = [this](const HostAndPort& place) { Told(mqtt::SentenceOfReached(place)); };
    AtBroker.Open(setUp);
    SetUpChanged();
}

// setup.json, which orvelle-setup writes. A running program does what a start would do, but for two things: the set-up
// that this computer made is served on for the others where the computer only leaves it, and none is made unasked.
void SimulatorProgram::TakeUpFile() {
    const mqtt::FoundSetUp found = mqtt::ReadSetUpFile(SetUp.PanelFile());
    if (std::exchange(toldOfFile, found.Sentence) != found.Sentence && !found.Sentence.empty()) Told(found.Sentence);
    const bool isOwn = found.Setting && !SetUp.JoinedElsewhere();
    if (isOwn || (own && !found.Setting) || found.Setting == member) return;
    AtBroker.Close();
    troubles.reset();
    member.reset();
    own.reset();
    if (found.Setting) return GoTo(*found.Setting);
    if (found.Sentence.empty())
        Told(
            "This computer has left its set-up, so nothing is served. Started again, orvelle-sim makes one of its "
            "own.");
    SetUpChanged();
}

// Each once, until it is over.
void SimulatorProgram::TellOfDevices() {
    const std::vector<std::string> before = std::exchange(toldOfDevices, Devices.Problems());
    for (const std::string& sentence : toldOfDevices)
        if (std::ranges::find(before, sentence) == before.end()) Told(sentence);
    DevicesChanged();
}

}  // namespace orvelle
