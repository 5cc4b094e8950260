#include "apps/OwnModules.h"

#include <dlfcn.h>

#include "adapters/linux/OwnFile.h"

namespace orvelle {

std::vector<std::filesystem::path> PlacesOfModule(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(linux::OwnFile()).parent_path();
    return {folder / name, (folder / ORVELLE_MODULES / name).lexically_normal()};
}

void* FunctionOfModule(const std::string& name, const char* function, std::string& why) {
    void* module = nullptr;
    std::error_code unknown;
    for (const std::filesystem::path& place : PlacesOfModule(name))
        if (module == nullptr && std::filesystem::exists(place, unknown))
            module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const found = module ? dlsym(module, function) : nullptr;
    if (found) return found;
    const char* const error = dlerror();
    why = error ? error : "the module " + name + " is not installed";
    return nullptr;
}

}  // namespace orvelle
