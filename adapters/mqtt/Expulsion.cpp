#include "adapters/mqtt/Expulsion.h"

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

namespace {

constexpr Long TakingMilliseconds = 300;     // for the broker to have read the keys, and the ids to be taken
constexpr Long ListeningMilliseconds = 500;  // a program that is there says so more rarely, one that floods doesn't

ConnectionPlan PlanFor(const SetUpSetting& own, const std::string& clientId, std::vector<Subscription> patterns) {
    return {{own.Host, own.Port, WriteIdentity(own.Identity), WriteKey(own.Key)}, clientId, "", std::move(patterns)};
}

}  // namespace

Expulsion::Expulsion(EventLoop& loop, const SetUpSetting& own, int removedIdentity)
    : panel(loop), simulator(loop), listening(loop) {
    const std::string removed = WriteIdentity(removedIdentity);
    // A pattern of their own that brings nothing, as a connection counts from its subscriptions.
    const std::vector<Subscription> nothing{{"orvelle/1/" + WriteIdentity(own.Identity) + "/sim/nothing", 0}};
    panel.Open(PlanFor(own, ClientId(removedIdentity, Program::Panel), nothing));
    simulator.Open(PlanFor(own, ClientId(removedIdentity, Program::Simulator), nothing));
    bound = loop.After(TakingMilliseconds, [this, &loop, own, removed] {
        panel.Close();
        simulator.Close();
        listening.Heard = [this](const std::string&, const std::string& payload) {
            if (!payload.empty()) isHeard = true;
        };
        listening.Open(PlanFor(own, WriteIdentity(own.Identity) + ".expulsion",
                               {{"orvelle/1/" + removed + "/#", 0, KeptMessages::LeftOut}}));
        bound = loop.After(ListeningMilliseconds, [this] {
            listening.Close();
            if (isHeard) StillHeard();
            Done();
        });
    });
}

}  // namespace orvelle::mqtt
