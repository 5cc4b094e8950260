#include "apps/simulator/TunedBox.h"

#include "adapters/looks/Text.h"
#include "apps/simulator/ChoiceWords.h"
#include "deck/fields/Readout.h"
#include "deck/pages/RadioRemarks.h"
#include "simulators/directory/Channels.h"

namespace orvelle {

namespace {

// Without power it is neither heard nor talked on, whatever is selected.
QString SoundsWords(const simulators::Radio& radio, bool transmits) {
    if (!radio.IsOperable) return "No power";
    if (transmits) return radio.IsHeard ? "Heard, transmits" : "Not heard, transmits";
    return radio.IsHeard ? "Heard" : "Not heard";
}

// A radio without power has no station, and one that is being turned none yet.
QString ToldWords(const simulators::RadioTold& told, bool isOperable) {
    if (!told.IsSettled) return "Settling";
    if (told.Chosen.Why == directory::Reason::NoDirectory) return "There is no directory";
    if (told.Chosen.Why == directory::Reason::NotTuned && !isOperable) return "None without power";
    const QString words = ChoiceWords(told.Chosen, told.Kilohertz);
    return words.left(1).toUpper() + words.mid(1);
}

}  // namespace

TunedBox::TunedBox() : Section("TunedRadios", "Radios of the simulator", 2) {
    AddCaptions({deck::RadioName(0), deck::RadioName(1)});
    for (int radio = 0; Radio & each : radios) {
        const QString name = deck::RadioName(radio++);
        each = {new deck::Readout("Tuned" + name), new deck::Readout("Sounds" + name),
                new deck::Readout("Station" + name), new deck::Readout("Record" + name)};
    }
    AddRow("Tuned to", {radios[0].Tuned, radios[1].Tuned});
    AddRow("State", {radios[0].Sounds, radios[1].Sounds});
    AddRow("Station", {radios[0].Station, radios[1].Station});
    AddRow("Voice", {radios[0].Record, radios[1].Record});
    AddWide(new QWidget, 1);
}

void TunedBox::Show(const simulators::SimulatorState* state, const std::array<simulators::RadioTold, 2>& told,
                    const std::array<RadioVoiceSetting, 2>& records) {
    for (std::size_t radio = 0; radio < radios.size(); ++radio) {
        const Radio& shown = radios.at(radio);
        if (!state) {
            for (deck::Readout* each : {shown.Tuned, shown.Sounds, shown.Station, shown.Record})
                each->Show(QString("-"));
            continue;
        }
        const simulators::Radio& tuned = state->Radios.at(radio);
        const bool transmits = state->Transmits == static_cast<int>(radio) + 1;
        shown.Tuned->Show(tuned.Kilohertz == 0 ? QString("-") : ToQt(directory::Megahertz(tuned.Kilohertz)));
        shown.Sounds->Show(SoundsWords(tuned, transmits));
        shown.Station->Show(ToldWords(told.at(radio), tuned.IsOperable));
        shown.Record->Show(RecordWords(records.at(radio)));
    }
}

}  // namespace orvelle
