#include "replay/peers/VelmarcPeer.h"

namespace orvelle::replay {

void VelmarcPeer::SetServer(const std::string& name) {
    Call("SetServer", {name});
    Keep(server, name);
}

std::string VelmarcPeer::GetServer() { return Ask("GetServer", {}, server.Held, server.Since); }

bool VelmarcPeer::LinkUp() { return Ask("LinkUp", {}, false); }

void VelmarcPeer::ClientReady() { Call("ClientReady"); }

std::string VelmarcPeer::IPAddress() { return Ask<std::string>("IPAddress", {}, ""); }

std::string VelmarcPeer::ComputerName() { return Ask<std::string>("ComputerName", {}, ""); }

std::string VelmarcPeer::DesktopName() { return Ask<std::string>("DesktopName", {}, ""); }

bool VelmarcPeer::IsLocalAddress(const std::string& name) { return Ask("IsLocalAddress", {name}, false); }

void VelmarcPeer::PlaySound(const std::string& path) { Call("PlaySound", {path}); }

}  // namespace orvelle::replay
