#include "apps/OwnServing.h"

#include <utility>

#include "adapters/mqtt/Topics.h"

namespace orvelle {

OwnServing::OwnServing(EventLoop& eventLoop, const mqtt::OwnSetUp& made, const SimulatorCommand& asked)
    : loop(eventLoop), setUp(made), command(asked), broker(eventLoop, made.ConfigurationFile()) {
    broker.Served = [this] {
        Announce();
        Served();
    };
    broker.Reloaded = [this] { CutOff(); };
    broker.Told = [this](const std::string& sentence) { Told(sentence); };
    broker.GaveUp = [this](const std::string& sentence) { GaveUp(sentence); };
}

std::string OwnServing::Open(const std::string& firstName) {
    mqtt::OwnSetUp::Outcome made = setUp.ReadOrMake(firstName, command.Port);
    if (!made.Setting) return made.Sentence;
    setting = std::move(made.Setting);
    if (!command.Name.empty()) {
        if (std::string sentence = setUp.Rename(command.Name); !sentence.empty()) return sentence;
        setting->Name = command.Name;
    }
    const HostAndPort place = command.Broker.value_or(HostAndPort{"localhost", setting->Port});
    const auto other = command.Own ? mqtt::OwnSetUp::OtherSetUp::IsLeft : mqtt::OwnSetUp::OtherSetUp::Stays;
    if (std::string sentence = setUp.JoinThisComputer(*setting, place.Host, place.Port, other); !sentence.empty())
        return sentence;
    own = *setUp.OfThisComputer(*setting);
    watch.emplace(loop, setUp.File());
    watch->Changed = [this] { TakeUp(); };
    if (BringsBroker()) return broker.Start();
    servedElsewhere = loop.After(0, [this] { Served(); });
    return "";
}

// From when the broker serves for the first time.
void OwnServing::Announce() {
    if (announcement) return;
    announcement.emplace(loop, setting->Name, setting->Port);
    announcement->Told = [this](const std::string& sentence) { Told(sentence); };
}

// Another process or the window added, removed or renamed. The broker's files are written already.
void OwnServing::TakeUp() {
    mqtt::OwnSetUp::Outcome found = setUp.Read();
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
    const bool hasOtherName = found.Setting->Name != setting->Name;
    const bool hasOtherKeys = found.Setting->Keys != setting->Keys;
    setting = std::move(found.Setting);
    if (hasOtherName && announcement) {
        announcement.reset();
        Announce();
    }
    if (hasOtherKeys && BringsBroker())
        broker.Reload();
    else
        CutOff();
    Changed();
}

void OwnServing::CutOff() {
    std::erase_if(ending, [](const auto& each) { return each->IsDone(); });
    bool restarts = false;
    for (const int identity : std::exchange(removed, {})) {
        const linux::BrokerChild::ClientNames known = broker.ClientsOf(mqtt::WriteIdentity(identity));
        std::vector<std::string> names(known.Names.begin(), known.Names.end());
        // Of an existing broker's clients the usual names are known.
        if (!BringsBroker())
            names = {mqtt::ClientId(identity, mqtt::Program::Panel),
                     mqtt::ClientId(identity, mqtt::Program::Simulator)};
        restarts = restarts || known.TooMany;
        if (!names.empty()) ending.push_back(std::make_unique<mqtt::ClientsEnd>(loop, own, names));
    }
    if (restarts) broker.Restart();
}

}  // namespace orvelle
