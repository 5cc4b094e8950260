// The registry's Run values as this desktop honours them: each command line there is a desktop entry in the user's
// autostart folder (XDG autostart) and back, so that ticking "Autostart" does what it says. What the user or the
// desktop did to the entry stands: one that was taken away, hidden or switched off is no value, another command line is
// the value and is kept, and so is each line that isn't ours to write. A new value ticks a hidden entry again.
//
// Where an entry can't be written or taken away, the value is kept all the same, the entry stays as it was, and it is
// told.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "adapters/linux/ForwardedRegistry.h"
#include "platform/Event.h"

namespace orvelle::linux {

class DesktopAutostart : public ForwardedRegistry {
public:
    // `folder` is the autostart folder, made when it is needed.
    DesktopAutostart(Registry& keptRegistry, std::filesystem::path folder)
        : ForwardedRegistry(keptRegistry), autostart(std::move(folder)) {}

    // One sentence each time that the desktop could not be told of a value.
    Event<const std::string&> Told;

    void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                             const std::string& value) override;
    std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override;
    void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) override;

private:
    std::filesystem::path Entry(const std::string& name) const { return autostart / (name + ".desktop"); }

    const std::filesystem::path autostart;
};

}  // namespace orvelle::linux
