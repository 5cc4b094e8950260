#include "apps/PanelVoiceDevices.h"

namespace orvelle {

namespace {

std::string EachEndedByLineFeed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += name + "\n";
    return text;
}

}  // namespace

std::string PanelVoiceDevices::InputNames() const { return EachEndedByLineFeed(list.InputNames()); }
std::string PanelVoiceDevices::OutputNames() const { return EachEndedByLineFeed(list.OutputNames()); }

std::string PanelVoiceDevices::Microphone(Long device) const {
    return NameOf(pulse::DeviceKind::Source, list.InputNames(), device);
}

std::string PanelVoiceDevices::Output(Long device) const {
    return NameOf(pulse::DeviceKind::Sink, list.OutputNames(), device);
}

std::string PanelVoiceDevices::NameOf(pulse::DeviceKind kind, const std::vector<std::string>& titles,
                                      Long device) const {
    if (device < 0 || static_cast<std::size_t>(device) >= titles.size()) return "";
    return server.NameOf(kind, titles.at(static_cast<std::size_t>(device)));
}

}  // namespace orvelle
