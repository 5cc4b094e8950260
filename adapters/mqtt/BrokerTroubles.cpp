#include "adapters/mqtt/BrokerTroubles.h"

#include "adapters/mqtt/SetUpFile.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

std::string SentenceOf(BrokerTrouble trouble, const HostAndPort& place, int identity, KeyFrom origin) {
    const std::string where = WriteHostAndPort(place, UsualPort);
    using enum BrokerTrouble;
    switch (trouble) {
        case HostUnknown:
            if (!IsHost(place.Host)) return "\"" + place.Host + "\" is no name of a host.";
            return "There is no computer by the name " + place.Host + ".";
        case Refused:
            return "The set-up at " + where +
                   (origin == KeyFrom::TypedCode
                        ? " doesn't take this code: it is another set-up's, or taken back."
                        : " doesn't take this computer's key: it is another set-up, or this computer was removed.");
        case NotEncrypted:
            return "What answers at " + where + " is no set-up: it isn't encrypted by keys.";
        case WrongProtocol:
            return "What answers at " + where + " is no set-up: it doesn't speak MQTT 5.";
        case TakenOver:
            return "The set-up at " + where +
                   " ends this computer's connection again and again: another one seems to come as " +
                   WriteIdentity(identity) + ", too; each computer needs a code of its own.";
        case None:
        case Unreachable:
            break;
    }
    return "No set-up can be reached at " + where + ": nobody answers.";
}

std::string SentenceOfReached(const HostAndPort& place) {
    return "The set-up at " + WriteHostAndPort(place, UsualPort) + " is reached again.";
}

}  // namespace orvelle::mqtt
