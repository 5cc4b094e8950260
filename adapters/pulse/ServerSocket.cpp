#include "adapters/pulse/ServerSocket.h"

#include "adapters/shared/Environment.h"

namespace orvelle::pulse {

namespace {

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
    if (const std::string named = Variable("PULSE_SERVER"); !named.empty()) return OfAddress(named);
    if (const std::string folder = Variable("PULSE_RUNTIME_PATH"); !folder.empty())
        return std::filesystem::path(folder) / "native";
    if (const std::string folder = Variable("XDG_RUNTIME_DIR"); !folder.empty())
        return std::filesystem::path(folder) / "pulse" / "native";
    return {};
}

}  // namespace orvelle::pulse
