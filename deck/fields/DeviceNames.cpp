#include "deck/fields/DeviceNames.h"

#include "adapters/looks/Text.h"

namespace orvelle::deck {

QString DeviceName(const std::vector<std::string>& names, Long device) {
    if (device < 0) return "Default device";
    const auto index = static_cast<std::size_t>(device);
    return index < names.size() ? ToQt(names[index]) : QString("Device %1").arg(device);
}

}  // namespace orvelle::deck
