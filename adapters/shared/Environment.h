// What the environment of this process says.
#pragma once

#include <cstdlib>
#include <string>

namespace orvelle {

// "" for a variable that is not there.
inline std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

}  // namespace orvelle
