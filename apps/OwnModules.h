// Where the modules lie that a program of ours loads when it first needs them: beside the program, as in the build
// folder, or in the private folder of libraries of the prefix that it is installed under.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle {

// The places to look in, the first one first.
std::vector<std::filesystem::path> PlacesOfModule(const std::string& name);

}  // namespace orvelle
