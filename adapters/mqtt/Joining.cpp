#include "adapters/mqtt/Joining.h"

#include <utility>

#include "adapters/mqtt/BrokerTroubles.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

namespace {

// None of the programs' names, so that one of them that runs stays connected.
std::string ClientIdOfJoining(int identity) { return WriteIdentity(identity) + ".setup"; }

JoinOutcome OutcomeOf(BrokerTrouble trouble) {
    using enum BrokerTrouble;
    switch (trouble) {
        case HostUnknown:
            return JoinOutcome::HostUnknown;
        case Refused:
            return JoinOutcome::Refused;
        case NotEncrypted:
        case WrongProtocol:
            return JoinOutcome::NotASetUp;
        case None:
        case Unreachable:
        case TakenOver:
            break;
    }
    return JoinOutcome::Unreachable;
}

}  // namespace

Joining::Joining(EventLoop& eventLoop, std::filesystem::path setUpFile)
    : loop(eventLoop), file(std::move(setUpFile)), connection(eventLoop) {
    connection.Up = [this] { Keep(); };
    connection.Failed = [this](BrokerTrouble trouble) { EndFor(trouble); };
}

void Joining::Try(const SetUpSetting& setUp) {
    Cancel();
    wanted = setUp;
    isUnderWay = true;
    const auto joined = ReadSetUpFile(file).Setting;
    origin = joined ? KeyFrom::SetUpFile : KeyFrom::TypedCode;
    if (joined && (joined->Identity != wanted.Identity || joined->Key != wanted.Key)) {
        bound = loop.After(0, [this, name = joined->Name] {
            End(JoinOutcome::InAnotherSetUp, "This computer is in the set-up " + name + " already; leave that first.");
        });
        return;
    }
    bound = loop.After(JoinMilliseconds, [this] { EndFor(BrokerTrouble::Unreachable); });
    const std::string identity = WriteIdentity(wanted.Identity);
    // What is subscribed to matters little: that the broker lets this computer do so is what tells.
    connection.Open({.Access = {wanted.Host, wanted.Port, identity, WriteKey(wanted.Key)},
                     .ClientId = ClientIdOfJoining(wanted.Identity),
                     .WillTopic = "",
                     .Subscriptions = {{"orvelle/1/" + identity + "/#", 0}}});
}

void Joining::Cancel() {
    isUnderWay = false;
    bound.End();
    connection.Close();
}

void Joining::Keep() {
    if (const std::string sentence = WriteSetUpFile(file, wanted); !sentence.empty())
        return End(JoinOutcome::NotKept, sentence);
    End(JoinOutcome::Joined, "This computer is " + WriteIdentity(wanted.Identity) + " of the set-up " + wanted.Name +
                                 " now, whose broker is " + Place() + ".");
}

void Joining::EndFor(BrokerTrouble trouble) {
    End(OutcomeOf(trouble), SentenceOf(trouble, {wanted.Host, wanted.Port}, wanted.Identity, origin));
}

void Joining::End(JoinOutcome outcome, const std::string& sentence) {
    Cancel();
    Ended(outcome, sentence);
}

std::string Joining::Place() const { return WriteHostAndPort({wanted.Host, wanted.Port}, UsualPort); }

}  // namespace orvelle::mqtt
