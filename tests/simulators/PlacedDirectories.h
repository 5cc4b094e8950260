// Directories that a test puts where they come from.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "simulators/directory/Directories.h"
#include "simulators/directory/LastGood.h"
#include "tests/linux/ServeUntil.h"
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

// Whether it was read as a directory.
inline bool Takes(LastGood& kept, const std::string& text, linux::PollEventLoop& loop) {
    std::optional<bool> isDirectory;
    kept.Taken = [&isDirectory](bool is) { isDirectory = is; };
    if (kept.Take(text)) return true;
    linux::ServeUntil(loop, [&isDirectory] { return isDirectory.has_value(); });
    kept.Taken = nullptr;
    return isDirectory.value_or(false);
}

}  // namespace orvelle::directory
