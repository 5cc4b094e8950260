// That a program is there, and which links it offers.
#include <algorithm>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Payloads.h"

namespace orvelle::mqtt {

namespace {

constexpr const char* SimulatorOffer = "simulator";
constexpr const char* FrameworkOffer = "framework";

bool Has(const std::vector<std::string>& offers, const char* offer) {
    return std::find(offers.begin(), offers.end(), offer) != offers.end();
}

}  // namespace

Long CountAfter(Long count) { return count < bounds::GreatestNumber ? count + 1 : 1; }

std::optional<PresenceSetting> ReadPresence(std::string_view payload) {
    JsonReading reading(payload);
    const Members members = reading.Object();
    PresenceSetting presence;
    presence.Name = members.Text("name");
    presence.Address = members.Text("address");
    presence.Desktop = members.Text("desktop");
    if (members.Has("offers")) {
        const std::vector<std::string> offers = members.Texts("offers");
        presence.OffersSimulator = Has(offers, SimulatorOffer);
        presence.OffersFramework = Has(offers, FrameworkOffer);
    }
    presence.Beat = members.Number("beat", 1, bounds::GreatestNumber);
    return reading.Taken(presence);
}

std::string WritePresence(const PresenceSetting& presence) {
    std::vector<std::string> offers;
    if (presence.OffersSimulator) offers.emplace_back(SimulatorOffer);
    if (presence.OffersFramework) offers.emplace_back(FrameworkOffer);

    JsonWriting writing;
    writing.Text("name", presence.Name);
    writing.Text("address", presence.Address);
    writing.Text("desktop", presence.Desktop);
    if (!offers.empty()) writing.Texts("offers", offers);
    writing.Number("beat", presence.Beat);
    return writing.Whole();
}

}  // namespace orvelle::mqtt
