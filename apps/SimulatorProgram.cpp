#include "apps/SimulatorProgram.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "adapters/mqtt/Topics.h"

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
      lock(SetUp.Folder().string(), "orvelle-sim"),
      broker(eventLoop, SetUp.ConfigurationFile()) {
    Simulator.SetLink(LinkState::Up);
    Network.SetLink(LinkState::Up);
    broker.Served = [this] {
        if (AtBroker.Identity() == 0) AtBroker.Open(own);
        Announce();
    };
    broker.Reloaded = [this] { CutOff(); };
    broker.Told = [this](const std::string& sentence) { Told(sentence); };
    broker.GaveUp = [this](const std::string& sentence) { Ends(sentence); };
}

std::string SimulatorProgram::Open() {
    const bool isOwnBroker = command.Host.empty();
    mqtt::OwnSetUp::Outcome made = SetUp.ReadOrMake(ComputerName(), isOwnBroker ? command.Port : 0);
    if (!made.Setting) return made.Sentence;
    setting = std::move(made.Setting);
    if (!lock.Take()) return "Another orvelle-sim serves this set-up already.";
    const std::string host = isOwnBroker ? "localhost" : command.Host;
    const int port = isOwnBroker || command.Port == 0 ? setting->Port : command.Port;
    if (std::string sentence = SetUp.JoinThisComputer(*setting, host, port); !sentence.empty()) return sentence;
    own = *SetUp.OfThisComputer(*setting);
    watch.emplace(loop, SetUp.File());
    watch->Changed = [this] { TakeUp(); };
    Devices.Changed = [this] { TellOfDevices(); };
    TellOfDevices();
    if (isOwnBroker) return broker.Start();
    AtBroker.Open(own);
    return "";
}

void SimulatorProgram::Close() {
    watch.reset();
    ending.clear();
    AtBroker.Close();
    broker.Stop();
}

// From when the broker serves for the first time.
void SimulatorProgram::Announce() {
    if (announcement) return;
    announcement.emplace(loop, setting->Name, setting->Port);
    announcement->Told = [this](const std::string& sentence) { Told(sentence); };
}

// Another process added or removed computers. Its files are written already.
void SimulatorProgram::TakeUp() {
    mqtt::OwnSetUp::Outcome found = SetUp.Read();
    if (!found.Setting) {
        const std::string sentence = found.Sentence.empty() ? "The set-up's own file is gone." : found.Sentence;
        if (std::exchange(toldLast, sentence) != sentence) Told(sentence);
        return;
    }
    toldLast.clear();
    if (found.Setting == setting) return;
    for (const auto& [identity, key] : setting->Keys) {
        const auto kept = found.Setting->Keys.find(identity);
        if (kept == found.Setting->Keys.end() || kept->second != key) removed.push_back(identity);
    }
    setting = std::move(found.Setting);
    if (command.Host.empty())
        broker.Reload();
    else
        CutOff();
    ComputersChanged();
}

void SimulatorProgram::CutOff() {
    std::erase_if(ending, [](const auto& each) { return each->IsDone(); });
    bool restarts = false;
    for (const int identity : std::exchange(removed, {})) {
        const linux::BrokerChild::ClientNames known = broker.ClientsOf(mqtt::WriteIdentity(identity));
        std::vector<std::string> names(known.Names.begin(), known.Names.end());
        // Of an existing broker's clients the usual names are known.
        if (!command.Host.empty())
            names = {mqtt::ClientId(identity, mqtt::Program::Panel),
                     mqtt::ClientId(identity, mqtt::Program::Simulator)};
        restarts = restarts || known.TooMany;
        if (!names.empty()) ending.push_back(std::make_unique<mqtt::ClientsEnd>(loop, own, names));
    }
    if (restarts) broker.Restart();
}

// Each once, until it is over.
void SimulatorProgram::TellOfDevices() {
    const std::vector<std::string> before = std::exchange(toldOfDevices, Devices.Problems());
    for (const std::string& sentence : toldOfDevices)
        if (std::ranges::find(before, sentence) == before.end()) Told(sentence);
    DevicesChanged();
}

}  // namespace orvelle
