#include "apps/FlightGearSetting.h"

#include "adapters/linux/OwnFile.h"
#include "adapters/shared/Environment.h"
#include "simulators/flightgear/FlightGearLine.h"

namespace orvelle {

namespace {

// Installed under the prefix, and made there in the build folder.
std::filesystem::path Installed() { return linux::OwnPrefix() / "share" / "orvelle" / "flightgear"; }

}  // namespace

FlightGearSetting::FlightGearSetting(const std::filesystem::path& data)
    : Options(Installed(), data / "flightgear", Variable("HOME"), simulators::FlightGearLine::UsualPort) {
    const auto note = [this](std::string sentence) {
        if (!sentence.empty()) Troubles.push_back(std::move(sentence));
    };
    note(Aircraft.Add(data / "aircraft.json"));
    note(Aircraft.Add(Installed() / "aircraft.json"));
    note(Options.Prepare(Aircraft));
}

}  // namespace orvelle
