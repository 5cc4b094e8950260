// The registry's Run values as this desktop honours them: each command line there is also a desktop entry in the
// user's autostart folder (XDG autostart), so that ticking "Autostart" does what it says. All else goes to the
// registry that it stands before. A value whose entry the user took away by the desktop's own means counts as absent.
// Where an entry can't be written or taken away, the value is kept all the same, the entry stays as it was, and it is
// told.
#pragma once

#include <filesystem>
#include <string>

#include "platform/Event.h"
#include "platform/Registry.h"

namespace orvelle::linux {

class DesktopAutostart : public Registry {
public:
    // `folder` is the autostart folder, made when it is needed.
    DesktopAutostart(Registry& keptRegistry, std::filesystem::path folder)
        : registry(keptRegistry), autostart(std::move(folder)) {}

    // One sentence each time that the desktop could not be told of a value.
    Event<const std::string&> Told;

    void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                             const std::string& value) override;
    std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override;
    void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) override;
    void WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) override;
    Long ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) override;
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override;

private:
    std::filesystem::path Entry(const std::string& name) const { return autostart / (name + ".desktop"); }

    Registry& registry;
    const std::filesystem::path autostart;
};

}  // namespace orvelle::linux
