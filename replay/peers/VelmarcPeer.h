// The scripted link to the simulator. No call raises an event.
#pragma once

#include "platform/Velmarc.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class VelmarcPeer final : public VelmarcControl, private Peer {
public:
    using Peer::Peer;

    void SetServer(const std::string& name) override;
    std::string GetServer() override;
    bool LinkUp() override;
    void ClientReady() override;
    std::string IPAddress() override;
    std::string ComputerName() override;
    std::string DesktopName() override;
    bool IsLocalAddress(const std::string& name) override;
    void PlaySound(const std::string& path) override;

private:
    Kept<std::string> server{AutomaticServer};
};

}  // namespace orvelle::replay
