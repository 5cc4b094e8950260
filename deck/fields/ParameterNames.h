// The numbered parameters of the interface record of role "VVL", integers and texts, in the order in which the deck
// lists them.
#pragma once

#include <span>

#include "platform/Types.h"

namespace orvelle::deck {

enum class ParameterKind { Number, Text };

struct ParameterName {
    ParameterKind Kind;
    Long Index;
    const char* Meaning;
};

std::span<const ParameterName> ParameterNames();

}  // namespace orvelle::deck
