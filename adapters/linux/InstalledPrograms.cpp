#include "adapters/linux/InstalledPrograms.h"

#include "adapters/linux/EntryCommand.h"
#include "adapters/linux/SearchPath.h"
#include "platform/RegistryPaths.h"

namespace orvelle::linux {

std::string InstalledPrograms::ReadRegistryDefault(const std::string& path, const std::string& name,
                                                   const std::string& defaultValue) {
    std::string value = registry.ReadRegistryDefault(path, name, "");
    if (value.empty() && name.empty()) value = Answer(path);
    return value.empty() ? registry.ReadRegistryDefault(path, name, defaultValue) : value;
}

std::string InstalledPrograms::Answer(const std::string& path) const {
    if (path == TeamSpeakCommandPath) {
        for (const std::filesystem::path& entry : applications.ThatOpen("x-scheme-handler/teamspeak"))
            if (std::string command = ShellCommandOf(entry); !command.empty()) return command;
    } else if (path == RogerWilcoPath) {
        // Programs bear no extension here; one that does is started by whatever the system has for such files.
        for (const char* const program : {"roger", "roger.exe"})
            if (std::string file = SearchPath(program); !file.empty()) return file;
    }
    return "";
}

}  // namespace orvelle::linux
