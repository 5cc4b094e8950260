// The panel's audio devices to the voice engine that is heard: what the panel lists by title, the sound server knows by
// names of its own. A title that the server doesn't know, as of a list from before it was there, stands for the default
// device.
#pragma once

#include <string>

#include "adapters/pulse/PulseDevices.h"
#include "apps/voice/VoiceModule.h"

namespace orvelle {

class PanelVoiceDevices : public VoiceDevices {
public:
    // The list is the one that the panel was given. Both outlive it.
    PanelVoiceDevices(const AudioDevices& panelsList, const pulse::PulseDevices& serversDevices)
        : list(panelsList), server(serversDevices) {}

    std::string InputNames() const override;
    std::string OutputNames() const override;
    std::string Microphone(Long device) const override;
    std::string Output(Long device) const override;

private:
    std::string NameOf(pulse::DeviceKind kind, const std::vector<std::string>& titles, Long device) const;

    const AudioDevices& list;
    const pulse::PulseDevices& server;
};

}  // namespace orvelle
