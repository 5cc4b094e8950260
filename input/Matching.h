// How an event's text is held against a stored text: exactly, case included. An empty text matches nothing, so a
// cleared slot is inert.
#pragma once

#include <string>

namespace orvelle {

// The key state of a slot or a row while this program holds its keys down.
constexpr const char* Down = "DOWN";

inline bool Equals(const std::string& text, const std::string& stored) { return !text.empty() && text == stored; }

inline bool Contains(const std::string& stored, const std::string& text) {
    return !text.empty() && stored.find(text) != std::string::npos;
}

}  // namespace orvelle
