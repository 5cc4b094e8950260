// The scripted notification area. It shows nothing; the fields of a record that its flags do not mark are printed as -.
#pragma once

#include "platform/NotificationArea.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class NotificationAreaPeer final : public NotificationArea, private Peer {
public:
    using Peer::Peer;

    void Shell_NotifyIconA(Long command, const NotifyIconData& data) override;
};

}  // namespace orvelle::replay
