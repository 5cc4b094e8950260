#include "apps/OwnModules.h"

#include "adapters/linux/OwnFile.h"

namespace orvelle {

std::vector<std::filesystem::path> PlacesOfModule(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(linux::OwnFile()).parent_path();
    return {folder / name, (folder / ORVELLE_MODULES / name).lexically_normal()};
}

}  // namespace orvelle
