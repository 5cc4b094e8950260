// A Wayland session is reached through the X server that it brings along, where it does: there windows are placed, and
// keys have a layout.
#include "apps/WindowSystem.h"

#include <QLibraryInfo>
#include <filesystem>

#include "adapters/linux/WaylandDisplay.h"
#include "adapters/looks/Text.h"
#include "adapters/x11/Display.h"

namespace orvelle {

namespace {

bool CanShowWaylandWindows() {
    const std::filesystem::path plugins = FromQt(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    return exists(plugins / "platforms" / "libqwayland-generic.so");
}

}  // namespace

WindowSystem FindWindowSystem() {
    const std::string missing = MissingDisplay();
    if (missing.empty() || !linux::HasWaylandDisplay()) return {"xcb", missing};
    return {"wayland", CanShowWaylandWindows()
                           ? ""
                           : "this Wayland session has no X server, and the package qt6-wayland is missing"};
}

}  // namespace orvelle
