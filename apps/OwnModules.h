// The modules that a program of ours loads when it first needs them. They lie beside the program, as in the build
// folder, or in the private folder of libraries of the prefix that it is installed under.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle {

// The places to look in, the first one first. A name that is a full path is its own only place.
std::vector<std::filesystem::path> PlacesOfModule(const std::string& name);

// Whether a module is installed; it is not loaded for that.
bool IsModuleThere(const std::string& name);

// Loads a module, which then stays. Null where that can't be done; `why` is then a part of a sentence.
void* FunctionOfModule(const std::string& name, const char* function, std::string& why);

template <typename Function>
Function* FunctionOf(const std::string& name, const char* function, std::string& why) {
    return reinterpret_cast<Function*>(FunctionOfModule(name, function, why));
}

}  // namespace orvelle
