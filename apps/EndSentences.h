// What the user is told of an end that nobody asked for: in a sentence what happened, and what to do. Whoever finds out
// why it happened says it in these words, and no other file has any.
#pragma once

#include <string>

namespace orvelle {

// A talk key was to be pressed or let go that is not set. `driver` is "RogerWilco" or "TeamSpeak", as is its page.
std::string EndWithoutTalkKey(const std::string& driver);
// The row of that name, on that page of the tables, has keys that can't be pressed.
std::string EndByTableRow(const std::string& page, const std::string& row);
// While the panel started: a value in the settings, which stand in that folder. `error` is the name of the error, as
// below.
std::string EndBySettings(const std::string& folder, const std::string& error);
// Any other error, by its name: "run-time error 13: type mismatch".
std::string EndByOwnError(const std::string& error);
// The panel is gone without a word.
std::string EndWithoutWord();

}  // namespace orvelle
