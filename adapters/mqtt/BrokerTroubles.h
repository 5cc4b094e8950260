// Why a broker can't be had, in a sentence for the user: the same words for whoever tries to join and for a panel that
// has joined.
#pragma once

#include <string>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/shared/HostAndPort.h"

namespace orvelle::mqtt {

enum class KeyFrom { TypedCode, SetUpFile };

// `identity` is the number by which the computer comes.
std::string SentenceOf(BrokerTrouble trouble, const HostAndPort& place, int identity, KeyFrom origin);

// That such a trouble is over.
std::string SentenceOfReached(const HostAndPort& place);

}  // namespace orvelle::mqtt
