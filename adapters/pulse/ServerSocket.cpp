#include "adapters/pulse/ServerSocket.h"

#include <cstdlib>

namespace orvelle::pulse {

namespace {

std::string Named(const char* variable) {
    const char* const value = std::getenv(variable);
    return value ? value : "";
}

std::filesystem::path OfAddress(std::string address) {
    const std::string scheme = "unix:";
    // An address may begin with the computer for which it holds.
    if (address.starts_with('{')) address.erase(0, address.find('}') + 1);
    if (address.starts_with(scheme)) address.erase(0, scheme.size());
    return address.starts_with('/') ? address : "";
}

}  // namespace

std::filesystem::path ServerSocket(const std::string& server) {
    if (!server.empty()) return OfAddress(server);
    if (const std::string named = Named("PULSE_SERVER"); !named.empty()) return OfAddress(named);
    if (const std::string folder = Named("PULSE_RUNTIME_PATH"); !folder.empty())
        return std::filesystem::path(folder) / "native";
    if (const std::string folder = Named("XDG_RUNTIME_DIR"); !folder.empty())
        return std::filesystem::path(folder) / "pulse" / "native";
    return {};
}

}  // namespace orvelle::pulse
