#include "apps/simulator/HandTuning.h"

#include <charconv>

#include "adapters/looks/Text.h"
#include "apps/simulator/ChoiceWords.h"
#include "simulators/directory/VoiceRecords.h"

namespace orvelle {

namespace {

// 0 for none.
int KilohertzOf(std::string frequency) {
    std::erase(frequency, '.');
    int kilohertz = 0;
    std::from_chars(frequency.data(), frequency.data() + frequency.size(), kilohertz);
    return kilohertz;
}

}  // namespace

deck::FoundChannel LookUpByHand(const directory::StationIndex& index, const directory::OwnLogins& logins,
                                const std::string& frequency, const std::string& callsign) {
    const int kilohertz = KilohertzOf(frequency);
    const directory::Choice choice = index.Choose(kilohertz, std::nullopt, {});
    const directory::Directory* const directory = index.Find(choice.Directory);
    deck::FoundChannel found{.Voice = std::nullopt, .Words = ChoiceWords(choice, kilohertz)};
    if (!choice.Voice || !directory) return found;
    found.Voice = directory::VoiceRecordOf(choice, kilohertz, callsign, directory, logins);
    if (!directory->Name.empty()) found.Words += ", from the directory " + ToQt(directory->Name);
    return found;
}

}  // namespace orvelle
