#include "apps/SimulatorProgram.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "adapters/mqtt/HostAndPort.h"

namespace orvelle {

namespace {

std::string ComputerName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 && name[0] ? name.data() : "OrvelleCP";
}

std::string DesktopName() {
    const char* const type = std::getenv("XDG_SESSION_TYPE");
    return type ? type : "";
}

}  // namespace

SimulatorProgram::SimulatorProgram(EventLoop& eventLoop, const SimulatorCommand& asked)
    : loop(eventLoop),
      SetUp(asked.Data),
      AtBroker(eventLoop,
               [] { return mqtt::PresenceSetting{.Name = ComputerName(), .Address = "", .Desktop = DesktopName()}; }),
      Devices(eventLoop, Simulator, {.SessionType = DesktopName(), .Sounds = OwnSounds()}),
      command(asked),
      lock(SetUp.Folder().string(), "orvelle-sim") {
    Simulator.SetLink(LinkState::Up);
    Network.SetLink(LinkState::Up);
    troubleWatch = AtBroker.Observe([this] { TellOfTrouble(); });
}

std::string SimulatorProgram::Open() {
    if (std::string sentence = SetUp.MakeFolder(); !sentence.empty()) return sentence;
    if (!lock.Take()) return "Another orvelle-sim serves this set-up already.";
    if (!lock.Problem().empty()) Told(lock.Problem());
    watch.emplace(loop, SetUp.PanelFile());
    watch->Changed = [this] { TakeUpFile(); };
    Devices.Changed = [this] { TellOfDevices(); };
    TellOfDevices();
    const std::optional<mqtt::SetUpSetting> joined = command.Own ? std::nullopt : SetUp.JoinedElsewhere();
    if (!joined) return ServeOwn();
    if (command.Broker || command.Port != 0 || !command.Name.empty())
        return "This computer belongs to the set-up \"" + joined->Name +
               "\" of another one, which decides on its name and broker; --own makes or serves one of its own.";
    GoTo(*joined);
    return "";
}

void SimulatorProgram::Close() {
    watch.reset();
    AtBroker.Close();
    own.reset();
}

std::string SimulatorProgram::Trouble() const {
    if (!member || AtBroker.IsThere()) return "";
    // The broker's own end is told by itself.
    const mqtt::BrokerTrouble trouble = AtBroker.Trouble();
    if (own && own->BringsBroker() && trouble == mqtt::BrokerTrouble::Unreachable) return "";
    const std::string place = mqtt::WriteHostAndPort({member->Host, member->Port});
    using enum mqtt::BrokerTrouble;
    switch (trouble) {
        case None:
            return "";
        case HostUnknown:
            return "There is no computer by the name " + member->Host + ", where the set-up's broker should be.";
        case Unreachable:
            return "The set-up's broker can't be reached at " + place + ": nobody answers.";
        case NotEncrypted:
            return "What answers at " + place + " isn't encrypted by keys, so it is not used as the set-up's broker.";
        case Refused:
            return "The set-up's broker at " + place + " doesn't take this computer's key: it is another set-up's, or this "
                   "computer was removed.";
        case WrongProtocol:
            return "What answers at " + place + " is no broker of a set-up: it doesn't speak MQTT 5.";
        case TakenOver:
            return "Another orvelle-sim came to the set-up's broker as the same computer.";
    }
    return "";
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
    toldOfTrouble.clear();
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
    member.reset();
    own.reset();
    if (found.Setting) return GoTo(*found.Setting);
    if (found.Sentence.empty())
        Told("This computer has left its set-up, so nothing is served. Started again, orvelle-sim makes one of its own.");
    SetUpChanged();
}

// Each reason once, until the broker was reached.
void SimulatorProgram::TellOfTrouble() {
    const std::string sentence = Trouble();
    if (AtBroker.IsThere()) toldOfTrouble.clear();
    if (sentence.empty() || std::exchange(toldOfTrouble, sentence) == sentence) return;
    Told(sentence);
}

// Each once, until it is over.
void SimulatorProgram::TellOfDevices() {
    const std::vector<std::string> before = std::exchange(toldOfDevices, Devices.Problems());
    for (const std::string& sentence : toldOfDevices)
        if (std::ranges::find(before, sentence) == before.end()) Told(sentence);
    DevicesChanged();
}

}  // namespace orvelle
