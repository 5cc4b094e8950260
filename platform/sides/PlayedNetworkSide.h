// What whoever plays the network does for other computers, which do it themselves on a real one: they make records and
// end them, announce changes, and the network refuses. Asked of the framework link's far side, which has none where the
// network is real.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

// Failures on demand: every such call of the panel fails.
struct NetworkRefusals {
    bool OpenSession = false;
    bool CreateInterface = false;
    bool OpenInterface = false;
};

class PlayedNetworkSide {
public:
    virtual ~PlayedNetworkSide() = default;

    // The new record's id.
    virtual Long Claim(const std::string& owner, const std::string& role,
                       const std::string& type = VoiceRecordType) = 0;
    virtual bool DropClaim(Long id) = 0;       // False for a record of the panel or none
    virtual bool AnnounceChange(Long id) = 0;  // reaches the record while the link stands

    virtual NetworkRefusals& Refuse() = 0;
};

}  // namespace orvelle
