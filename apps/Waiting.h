// Waiting, of a program that plays itself: it serves its loop until what it waits for has come. A condition is looked
// at every two milliseconds, which is as exact as the times are that a program tells of it.
#pragma once

#include <chrono>
#include <functional>

namespace orvelle {

// For what takes a moment, on a machine in trouble.
constexpr std::chrono::seconds LongestWait{30};

// Serves the program's loop until `isTrue`; false when LongestWait is over.
bool WaitUntil(const std::function<bool()>& isTrue);

}  // namespace orvelle
