#include "adapters/linux/DesktopAutostart.h"

#include <system_error>

#include "adapters/shared/WholeFile.h"
#include "platform/RegistryPaths.h"

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

// Inside the quotes of a command line "\", "`" and "$" are escaped, each "\" again as every text of an entry's is, and
// "%" stands for fields.
std::string ExecOf(const std::string& commandLine) {
    std::string exec;
    for (const char letter : commandLine) {
        if (letter == '\\') exec += R"(\\\)";
        if (letter == '`' || letter == '$') exec += R"(\\)";
        if (letter == '%') exec += '%';
        exec += letter;
    }
    return exec;
}

}  // namespace

void DesktopAutostart::WriteRegistryString(Long root, const std::string& path, const std::string& name,
                                           const std::string& value) {
    registry.WriteRegistryString(root, path, name, value);
    if (path != RunPath) return;
    const std::string entry = "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + ExecOf(value) + "\n";
    if (const std::error_code error = WriteWholeFile(Entry(name), entry))
        Told("The autostart entry " + Entry(name).string() + " could not be written: " + error.message() + ".");
}

std::string DesktopAutostart::ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                                 const std::string& defaultValue) {
    std::error_code error;
    if (path == RunPath && !fs::exists(Entry(name), error)) return defaultValue;
    return registry.ReadRegistryString(root, path, name, defaultValue);
}

void DesktopAutostart::DeleteRegistryValue(Long root, const std::string& path, const std::string& name) {
    registry.DeleteRegistryValue(root, path, name);
    std::error_code error;
    if (path == RunPath) fs::remove(Entry(name), error);
    if (error)
        Told("The autostart entry " + Entry(name).string() + " could not be taken away: " + error.message() + ".");
}

void DesktopAutostart::WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) {
    registry.WriteRegistryLong(root, path, name, value);
}

Long DesktopAutostart::ReadRegistryLong(Long root, const std::string& path, const std::string& name,
                                        Long defaultValue) {
    return registry.ReadRegistryLong(root, path, name, defaultValue);
}

std::string DesktopAutostart::ReadRegistryDefault(const std::string& path, const std::string& name,
                                                  const std::string& defaultValue) {
    return registry.ReadRegistryDefault(path, name, defaultValue);
}

}  // namespace orvelle::linux
