// The sentences that the store has for its user, for whoever finds a reason for one.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle::store {

constexpr const char* ChangesAreLost = "changes are lost when the panel ends.";

std::string Quoted(const std::filesystem::path& path);
// "The settings file ..."
std::string NamedFile(const std::filesystem::path& path);
// A value by its name and place.
std::string NamedValue(const std::string& place, const std::string& name);
// The first of them, and how many more there are.
std::string Listed(const std::vector<std::string>& names);

}  // namespace orvelle::store
