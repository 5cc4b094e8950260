// The registry's values that tell which voice programs are installed, answered by the desktop where the registry has
// none: TeamSpeak's shell command by the application that opens teamspeak URLs, RogerWilco's path by the program path.
// So "Rescan" finds what is installed.
#pragma once

#include <string>

#include "adapters/linux/BaseFolders.h"
#include "adapters/linux/DesktopApplications.h"
#include "adapters/linux/ForwardedRegistry.h"

namespace orvelle::linux {

class InstalledPrograms : public ForwardedRegistry {
public:
    InstalledPrograms(Registry& keptRegistry, const BaseFolders& folders)
        : ForwardedRegistry(keptRegistry), applications(folders) {}

    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override;

private:
    std::string Answer(const std::string& path) const;

    DesktopApplications applications;
};

}  // namespace orvelle::linux
