// How much a message may hold: readers refuse what is beyond, writers cut it. And how much of others is kept.
#pragma once

#include <cstddef>
#include <limits>

#include "platform/Types.h"

namespace orvelle::mqtt::bounds {

constexpr std::size_t Payload = std::size_t{64} * 1024;           // bytes
constexpr std::size_t Directory = std::size_t{16} * 1024 * 1024;  // bytes of the one payload that may be longer
constexpr std::size_t HeldNames = 64;                             // keys; buttons likewise
constexpr std::size_t Text = 1000;                                // characters
constexpr Long LastIndex = 999;                                   // of a record's parameters
constexpr Long LeastNumber = std::numeric_limits<Long>::min();
constexpr Long GreatestNumber = std::numeric_limits<Long>::max();

constexpr std::size_t RecordsOfOneComputer = 1000;
constexpr std::size_t BytesOfOneComputer = std::size_t{4} * 1024 * 1024;  // payloads of its records together
constexpr std::size_t DirectoriesOfOneComputer = 100;                     // of bounds::Directory together
constexpr std::size_t FoundServers = 100;                                 // on the network

}  // namespace orvelle::mqtt::bounds
