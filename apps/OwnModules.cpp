#include "apps/OwnModules.h"

#include <dlfcn.h>

#include "adapters/linux/OwnFile.h"

namespace orvelle {

namespace {

// The file of a module, "" where it is not installed.
std::filesystem::path FileOf(const std::string& name) {
    std::error_code unknown;
    for (const std::filesystem::path& place : PlacesOfModule(name))
        if (std::filesystem::exists(place, unknown)) return place;
    return {};
}

}  // namespace

std::vector<std::filesystem::path> PlacesOfModule(const std::string& name) {
    return {linux::BesideOwnFile(name), linux::OwnPrefix() / ORVELLE_MODULES / name};
}

bool IsModuleThere(const std::string& name) { return !FileOf(name).empty(); }

void* FunctionOfModule(const std::string& name, const char* function, std::string& why) {
    const std::filesystem::path file = FileOf(name);
    if (file.empty()) {
        why = "the module " + name + " is not installed";
        return nullptr;
    }
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const found = module ? dlsym(module, function) : nullptr;
    if (!found) why = dlerror();
    return found;
}

}  // namespace orvelle
