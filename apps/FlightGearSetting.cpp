#include "apps/FlightGearSetting.h"

#include "adapters/linux/OwnFile.h"
#include "adapters/shared/Environment.h"

namespace orvelle {

namespace {

// Installed under the prefix, and made there in the build folder.
std::filesystem::path Installed() { return linux::OwnPrefix() / "share" / "orvellecp" / "flightgear"; }

}  // namespace

FlightGearSetting::FlightGearSetting(const std::filesystem::path& data, std::uint16_t port)
    : Options(Installed(), data / "flightgear", Variable("HOME"), port) {
    const auto note = [this](std::string sentence) {
        if (!sentence.empty()) Troubles.push_back(std::move(sentence));
    };
    note(Aircraft.Add(data / "aircraft.json"));
    note(Aircraft.Add(Installed() / "aircraft.json"));
    note(Options.Prepare(Aircraft));
}

}  // namespace orvelle
