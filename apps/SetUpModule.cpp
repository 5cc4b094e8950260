#include "apps/SetUpModule.h"

#include <optional>
#include <utility>

#include "adapters/avahi/ServiceBrowser.h"
#include "adapters/mqtt/BrokerFrameworkLine.h"
#include "adapters/mqtt/BrokerSimulatorLine.h"
#include "apps/SetUpDesk.h"

namespace orvelle {

namespace {

class BrokerLinks : public SetUpLinks {
public:
    BrokerLinks(EventLoop& eventLoop, const ComputerNames& thisComputer)
        : loop(eventLoop),
          brokers(eventLoop,
                  [thisComputer] {
                      return mqtt::PresenceSetting{
                          .Name = thisComputer.Name, .Address = "", .Desktop = thisComputer.Desktop};
                  }),
          simulatorLine(eventLoop, brokers),
          frameworkLine(eventLoop, brokers) {
        brokers.Told = [this](const std::string& sentence) { Told(sentence); };
    }

    void Join(const mqtt::SetUpSetting& setUp) override {
        Look();
        brokers.Join(setUp);
    }
    void Leave() override {
        browser.reset();
        brokers.Found.End();
        brokers.Leave();
    }
    void SayGoodbye() override { brokers.SayGoodbye(); }
    orvelle::SimulatorLine& SimulatorLine() override { return simulatorLine; }
    orvelle::FrameworkLine& FrameworkLine() override { return frameworkLine; }

private:
    void Look() {
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

    EventLoop& loop;
    mqtt::Brokers brokers;
    std::optional<avahi::ServiceBrowser> browser;  // while a set-up is joined
    bool isMissingTold = false;
    mqtt::BrokerSimulatorLine simulatorLine;
    mqtt::BrokerFrameworkLine frameworkLine;
};

}  // namespace

}  // namespace orvelle

orvelle::SetUpLinks* NewOrvelleSetUpLinks(orvelle::EventLoop& loop, const orvelle::ComputerNames& thisComputer) {
    return new orvelle::BrokerLinks(loop, thisComputer);
}

orvelle::JoinSide* NewOrvelleSetUpDesk(orvelle::EventLoop& loop, const std::filesystem::path& dataFolder) {
    return new orvelle::SetUpDesk(loop, dataFolder);
}
