#include "apps/simulator/FoundBox.h"

#include <cmath>
#include <utility>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/Remark.h"
#include "deck/fields/SignalLight.h"
#include "deck/fields/TextField.h"
#include "simulators/SimulatorLife.h"

namespace orvelle {

namespace {

constexpr int PlaceDigits = 3;

QString Degrees(double degrees, const char* positive, const char* negative) {
    return QString::number(std::abs(degrees), 'f', PlaceDigits) + "° " + (degrees < 0 ? negative : positive);
}

QString PlaceWords(const simulators::SimulatorState* state) {
    if (!state || !state->Where) return "-";
    const simulators::Place& where = *state->Where;
    return Degrees(where.Latitude, "N", "S") + ", " + Degrees(where.Longitude, "E", "W") + ", " +
           QString::number(std::lround(where.Altitude)) + " ft" + (state->IsPaused ? ", paused" : "");
}

QString AircraftWords(const simulators::SimulatorState* state) {
    if (!state) return "-";
    const QString callsign = state->Callsign.empty() ? QString() : ", callsign " + ToQt(state->Callsign);
    const QString tail = state->Tail.empty() ? QString() : ", tail number " + ToQt(state->Tail);
    return (state->Aircraft.empty() ? QString("Unknown") : ToQt(state->Aircraft)) + tail + callsign +
           (state->IsOnline ? ", online" : "");
}

// The rule is that of SimulatorChoice.
QString OthersWords(const std::vector<simulators::SimulatorSource*>& passedOver) {
    if (passedOver.empty()) return "None";
    QStringList names;
    for (const simulators::SimulatorSource* source : passedOver) names << ToQt(source->Name());
    return names.join(", ") +
           ", passed over: the one whose window was active last counts, else the one that came first";
}

}  // namespace

FoundBox::FoundBox(std::function<void(const std::string&)> setOwnCallsign)
    : Section("FoundSimulator", "Simulator"),
      found(new deck::SignalLight("Found")),
      aircraft(new deck::Readout("Aircraft")),
      place(new deck::Readout("AircraftPlace")),
      others(new deck::Readout("PassedOver")),
      callsign(deck::NewEdit("OwnCallsign",
                             "Your callsign where the simulator knows none, as X-Plane; Enter applies it. Without one "
                             "the aircraft's tail number is taken",
                             std::move(setOwnCallsign))),
      remark(new deck::Remark("FoundRemark")) {
    AddRow("Found", {found});
    AddRow("Aircraft", {aircraft});
    AddRow("Place", {place});
    AddRow("Others there", {others});
    AddRow("Own ca&llsign", {callsign});
    AddWide(remark);
}

void FoundBox::Show(const simulators::SimulatorSource* chosen,
                    const std::vector<simulators::SimulatorSource*>& passedOver, const std::string& ownCallsign,
                    const QString& trouble) {
    Follow(chosen);
    const simulators::SimulatorState* const state = chosen && chosen->State() ? &*chosen->State() : nullptr;
    ShowPresence(chosen);
    aircraft->Show(AircraftWords(state));
    place->Show(PlaceWords(state));
    others->Show(OthersWords(passedOver));
    callsign->Show(ownCallsign);
    remark->Show(trouble);
}

void FoundBox::Follow(const simulators::SimulatorSource* chosen) {
    if (!chosen || chosen->Stands() != simulators::Presence::Busy)
        silent.invalidate();
    else if (!silent.isValid())
        silent.start();
}

void FoundBox::ShowPresence(const simulators::SimulatorSource* chosen) {
    if (!chosen || chosen->Stands() == simulators::Presence::Absent)
        return found->Show(Sign::Off, "None; session and radios are set by hand");
    if (!silent.isValid()) return found->Show(Sign::Good, ToQt(chosen->Name()));
    const qint64 seconds = (silent.elapsed() + simulators::SimulatorLife::QuietMilliseconds) / 1000;
    found->Show(Sign::Waiting, ToQt(chosen->Name()) + QString(", silent for %1 s").arg(seconds));
}

}  // namespace orvelle
