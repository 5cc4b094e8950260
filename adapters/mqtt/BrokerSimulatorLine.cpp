#include "adapters/mqtt/BrokerSimulatorLine.h"

#include <utility>

namespace orvelle::mqtt {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds Silence{400};

}  // namespace

void BrokerSimulatorLine::Open(const std::string& name) {
    wanted = name;
    moved = brokers.Changed.Attach([this] { Open(std::string(*wanted)); });
    found = brokers.Found.Observe([this] { TellFound(); });
    std::shared_ptr<PanelAtBroker> next = brokers.At(name);
    if (next == at) return;
    Leave();
    at = std::move(next);
    if (at) {
        changed = at->Changed.Attach([this] { Review(); });
        heard = at->Heard.Attach([this](const Topic& topic, const std::string& payload) { Hear(topic, payload); });
    }
    // What is so already is told from the loop.
    first = loop.After(0, [this] {
        TellFound();
        Review();
    });
}

void BrokerSimulatorLine::Close() {
    wanted.reset();
    moved.End();
    found.End();
    Leave();
    first.End();
    server = 0;
}

void BrokerSimulatorLine::SaySound(const std::string& path) {
    if (at && server != 0) at->Say(TopicKind::Play, WritePlay({server, path}));
}

SimulatorComputer BrokerSimulatorLine::FarComputer() {
    const PresenceSetting* const said = at ? at->Others().Find({server, Program::Simulator}) : nullptr;
    return said ? SimulatorComputer{said->Address, said->Name, said->Desktop} : SimulatorComputer{"", "", ""};
}

// The member may be telling us of something now, so it goes when that is over.
void BrokerSimulatorLine::Leave() {
    changed.End();
    heard.End();
    held = {};
    if (at) loop.Post([leaving = std::exchange(at, nullptr)] {});
}

// The events may change all of this, so each is the last thing done.
void BrokerSimulatorLine::Review() {
    const int now = at && at->IsThere() ? at->Others().SimulatorOffering(&PresenceSetting::OffersSimulator) : 0;
    const int before = std::exchange(server, now);
    if (now == before) return;
    // With this link a panel forgets which servers of the other one were found.
    brokers.Found.TellAgain();
    if (now == 0) {
        held = {};
        Lost();
    } else if (before == 0) {
        Up();
    } else {
        LetGo();
    }
}

// A handler may close the line.
void BrokerSimulatorLine::TellFound() {
    for (const std::string& host : brokers.Found.Hosts())
        if (wanted) ServerFound(host);
}

void BrokerSimulatorLine::Hear(const Topic& topic, const std::string& payload) {
    if (topic.Kind != TopicKind::Input || topic.Identity != server || server == 0) return;
    const auto message = ReadInput(payload);
    if (!message) return at->CountRefused();
    held = message->Held;
    heardAt = steady_clock::now();
    if (!HoldsNothing() && !isSilenceAwaited) AwaitSilence(Silence);
    Said(message->Held);
}

// One timer serves all messages of a while, as making one for each would delay the key that it brings.
void BrokerSimulatorLine::AwaitSilence(milliseconds left) {
    isSilenceAwaited = true;
    silence = loop.After(static_cast<Long>(left.count()), [this] {
        isSilenceAwaited = false;
        const auto rest = std::chrono::ceil<milliseconds>(heardAt + Silence - steady_clock::now());
        if (HoldsNothing()) return;
        if (rest > milliseconds(0)) return AwaitSilence(rest);
        LetGo();
    });
}

void BrokerSimulatorLine::LetGo() {
    if (HoldsNothing()) return;
    held.Keys.clear();
    held.Buttons.clear();
    held.Repeat.clear();
    const SimulatorInput nothing = held;
    Said(nothing);
}

}  // namespace orvelle::mqtt
