#include "apps/Outside.h"

#include <utility>

#include "apps/OwnModules.h"

namespace orvelle {

namespace {

constexpr const char* LocalDomain = ".local";  // of what the network's own names say of this computer

}  // namespace

Outside::Outside(EventLoop& eventLoop, ControlValues& controlValues, const ComputerNames& thisComputer,
                 TeamSpeakRemote* realTeamSpeak)
    : Practice(eventLoop),
      loop(eventLoop),
      brokers(eventLoop,
              [thisComputer] {
                  return mqtt::PresenceSetting{
                      .Name = thisComputer.Name, .Address = "", .Desktop = thisComputer.Desktop};
              }),
      simulatorLine(eventLoop, brokers),
      frameworkLine(eventLoop, brokers),
      loadedPlayers(PlacesOfModule(media::ModuleName)),
      Velmarc(eventLoop, controlValues, simulatorLines, {thisComputer.Name, thisComputer.Name + LocalDomain}),
      Tessaly(eventLoop, controlValues, frameworkLines),
      VVL(Practice.VVL, Velmarc),
      TSRemote(realTeamSpeak ? *realTeamSpeak : Practice.TSRemote),
      MediaPlayers(loadedPlayers.IsThere() ? static_cast<MediaPlayerFactory&>(loadedPlayers) : Practice.MediaPlayers) {
    brokers.Told = [this](const std::string& sentence) { Told(sentence); };
    loadedPlayers.Told = [this](const std::string& sentence) { Told(sentence); };
}

void Outside::Join(const mqtt::SetUpSetting& setUp) {
    Look();
    brokers.Join(setUp);
    simulatorLines.EnterOthers(simulatorLine);
    frameworkLines.EnterOthers(frameworkLine);
    ChooseLines();
}

void Outside::Practise() {
    browser.reset();
    brokers.Found.End();
    brokers.Leave();
    simulatorLines.EnterOthers(Practice.SimulatorLink);
    frameworkLines.EnterOthers(Practice.NetworkLink);
    ChooseLines();
}

void Outside::Look() {
    if (browser) return;
    const auto server = [](const avahi::FoundService& service) {
        return mqtt::FoundServer{service.SetUp, {service.Host, service.Port}};
    };
    brokers.Found.Begin();
    browser.emplace(loop);
    browser->Came = [=, this](const avahi::FoundService& service) { brokers.Found.Add(server(service)); };
    browser->Went = [=, this](const avahi::FoundService& service) { brokers.Found.Remove(server(service)); };
    browser->Told = [this](const std::string& sentence) {
        brokers.Found.Settle();
        if (!std::exchange(isMissingTold, true)) Told(sentence);
    };
}

void Outside::ChooseLines() {
    Velmarc.ChooseLine();
    Tessaly.ChooseLine();
}

}  // namespace orvelle
