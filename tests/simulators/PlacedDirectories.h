// Directories that a test puts where they come from.
#pragma once

#include <string>
#include <vector>

#include "simulators/directory/Directories.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {

inline std::string DirectoryNamed(const std::string& name) {
    return Json("{'format': 'orvelle-directory/1', 'name': '" + name + "', 'servers': {}}");
}

// The names of those that have content, in their order, as "Club|Other".
inline std::string NamesIn(const std::vector<DirectorySource::Found>& found) {
    std::string names;
    for (const DirectorySource::Found& each : found)
        if (each.Content) names += (names.empty() ? "" : "|") + each.Content->Name;
    return names;
}

}  // namespace orvelle::directory
