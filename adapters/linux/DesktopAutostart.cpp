#include "adapters/linux/DesktopAutostart.h"

#include <system_error>

#include "adapters/linux/AutostartEntry.h"
#include "adapters/linux/KeyFile.h"
#include "adapters/shared/WholeFile.h"
#include "platform/RegistryPaths.h"

namespace orvelle::linux {

void DesktopAutostart::WriteRegistryString(Long root, const std::string& path, const std::string& name,
                                           const std::string& value) {
    const std::string before = path == RunPath ? registry.ReadRegistryString(root, path, name, "") : "";
    registry.WriteRegistryString(root, path, name, value);
    if (path != RunPath) return;
    const std::string entry = KeyFile::TextOf(Entry(name));
    const std::string changed = ChangedAutostartEntry(entry, before, value);
    if (changed == entry) return;
    if (const std::error_code error = WriteWholeFile(Entry(name), changed))
        Told("The autostart entry " + Entry(name).string() + " could not be written: " + error.message() + ".");
}

std::string DesktopAutostart::ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                                 const std::string& defaultValue) {
    if (path != RunPath) return registry.ReadRegistryString(root, path, name, defaultValue);
    const std::string commandLine = CommandLineOfEntry(KeyFile::TextOf(Entry(name)));
    return commandLine.empty() ? defaultValue : commandLine;
}

void DesktopAutostart::DeleteRegistryValue(Long root, const std::string& path, const std::string& name) {
    registry.DeleteRegistryValue(root, path, name);
    std::error_code error;
    if (path == RunPath) std::filesystem::remove(Entry(name), error);
    if (error)
        Told("The autostart entry " + Entry(name).string() + " could not be taken away: " + error.message() + ".");
}

}  // namespace orvelle::linux
