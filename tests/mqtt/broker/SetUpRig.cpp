#include "tests/mqtt/broker/SetUpRig.h"

#include "tests/linux/ServeUntil.h"

namespace orvelle::mqtt {

namespace {

std::string Joined(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : " ") + name;
    return joined;
}

}  // namespace

PlayedMember::PlayedMember(EventLoop& loop, const SetUpSetting& setUp, Program kind)
    : AtBroker(loop, kind, {{"orvelle/1/#", 1}}, [this] { return Presence; }) {
    Presence = {.Name = "PLAYED", .Address = "", .Desktop = "none"};
    Presence.OffersSimulator = Presence.OffersFramework = kind == Program::Simulator;
    AtBroker.Heard = [this](const Topic& topic, const std::string& payload) {
        Heard.push_back(WriteTopic(topic) + " " + payload);
    };
    AtBroker.Open(setUp, setUp.Host);
}

LinesOfAPanel::LinesOfAPanel(EventLoop& loop, const SetUpSetting& setUp, const std::string& simulatorServer,
                             const std::string& frameworkServer)
    : Places(loop, [] { return PresenceSetting{.Name = "PANEL", .Address = "", .Desktop = "X11"}; }),
      Simulator(loop, Places),
      Framework(loop, Places) {
    Places.Join(setUp);
    const auto tell = [this](std::string what) { Told.push_back(std::move(what)); };
    Simulator.Up = [=] { tell("simulator up"); };
    Simulator.Lost = [=] { tell("simulator lost"); };
    Simulator.Said = [=](const SimulatorInput& said) {
        tell("held " + Joined(said.Keys) + "|" + Joined(said.Buttons) + (said.Active ? "" : " inactive") +
             (said.Repeat.empty() ? "" : " repeat " + said.Repeat));
    };
    Framework.Up = [=] { tell("framework up"); };
    Framework.Lost = [=] { tell("framework lost"); };
    Framework.SessionSaid = [=](const SessionSetting& said) {
        tell("session " + std::to_string(said.Handle) + " " + said.Callsign);
    };
    Framework.RecordSaid = [=](Long id, const RecordContent& content) {
        tell("record " + std::to_string(id) + " " + content.Role);
    };
    Framework.RecordEnded = [=](Long id) { tell("record ended " + std::to_string(id)); };
    Framework.RecordTaken = [=](Long id) { tell("record taken " + std::to_string(id)); };
    Framework.WriteSaid = [=](Long id, const RecordParameters& written) {
        tell("write " + std::to_string(id) + " of " + std::to_string(written.Numbers.size() + written.Texts.size()));
    };
    Simulator.ServerFound = [=](const std::string& name) { tell("simulator found " + name); };
    Framework.ServerFound = [=](const std::string& name) { tell("framework found " + name); };
    Places.Told = [this](const std::string& sentence) { Sentences.push_back(sentence); };
    Simulator.Open(simulatorServer);
    Framework.Open(frameworkServer);
}

bool SetUpRig::Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }

void SetUpRig::ServeFor(Long milliseconds) {
    const Ticket end = loop.After(milliseconds, [this] { loop.Stop(); });
    loop.Run();
}

}  // namespace orvelle::mqtt
