#include "simulators/SimulatorSession.h"

#include <utility>

#include "platform/RadioSelection.h"
#include "platform/Tessaly.h"
#include "simulators/directory/Channels.h"
#include "simulators/directory/VoiceRecords.h"

namespace orvelle::simulators {

namespace {

// Another frequency is shown as the radio tells it.
std::string Shown(int kilohertz) {
    if (kilohertz == 0) return "";
    return directory::Megahertz(directory::ChannelOfKilohertz(kilohertz).value_or(kilohertz));
}

const char* Selection(bool isFirst, bool isSecond) {
    if (isFirst && isSecond) return SelectsBoth;
    if (isFirst) return SelectsCom1;
    return isSecond ? SelectsCom2 : SelectsNone;
}

}  // namespace

SimulatorSession::SimulatorSession(EventLoop& eventLoop, SimulatorChoice& simulatorChoice,
                                   directory::Directories& allDirectories, const directory::OwnLogins& ownLogins,
                                   NetworkSide& networkSide)
    : loop(eventLoop), choice(simulatorChoice), directories(allDirectories), logins(ownLogins), network(networkSide) {
    choice.Changed = [this] { Follow(); };
    directories.Changed = [this] { Follow(); };
    Follow();
}

void SimulatorSession::SetOwnCallsign(const std::string& callsign) {
    if (std::exchange(ownCallsign, callsign) != callsign) Follow();
}

void SimulatorSession::Follow() {
    SimulatorSource* const source = choice.Chosen();
    if (!source || !source->State())
        GiveBack();
    else
        Rule(*source);
    Changed();
}

// One process of a simulator is one session.
void SimulatorSession::Rule(SimulatorSource& source) {
    const bool isAnother = ruling != &source || run != source.Run();
    if (isAnother) {
        if (!ruling) byHand = network.Session();
        network.EndSession();
        ruling = &source;
        run = source.Run();
        told = {};
        tuned = {};
        justSaid.clear();
    }
    const SimulatorState& state = *source.State();
    for (std::size_t radio = 0; radio < tuned.size(); ++radio)
        Tune(radio, {state.Radios[radio].Kilohertz, state.Radios[radio].IsOperable});
    ChooseStations(state);
    Say();
    if (isAnother) network.StartSession();
}

void SimulatorSession::GiveBack() {
    if (!std::exchange(ruling, nullptr)) return;
    told = {};
    tuned = {};
    justSaid.clear();
    // A panel goes on showing the last radios of a session that was closed, so they are switched off before.
    SessionSetting silent = network.Session();
    silent.Frequency = {};
    silent.Voice = {};
    silent.Receive = silent.Transmit = SelectsNone;
    network.SetAll(silent);
    network.EndSession();
    network.SetAll(byHand);
}

void SimulatorSession::Tune(std::size_t radio, const Tuning& now) {
    Tuned& its = tuned[radio];
    const bool isChange = its.Now != now;
    its.Now = now;
    told[radio].Kilohertz = now.Kilohertz;
    told[radio].IsSettled = its.Settled == now;
    if (told[radio].IsSettled)
        its.Settling.End();
    else if (isChange)
        its.Settling = loop.After(SettlingMilliseconds, [this, radio] { Settle(radio); });
}

void SimulatorSession::Settle(std::size_t radio) {
    const bool isOnChannel = tuned[radio].Settled && tuned[radio].Settled->Kilohertz == tuned[radio].Now->Kilohertz;
    tuned[radio].Settled = tuned[radio].Now;
    // A station is held for as long as its channel is tuned.
    if (!isOnChannel) told[radio].Chosen = {};
    Follow();
}

void SimulatorSession::ChooseStations(const SimulatorState& state) {
    for (std::size_t radio = 0; radio < tuned.size(); ++radio) {
        const std::optional<Tuning>& settled = tuned[radio].Settled;
        if (!settled) continue;
        directory::Choice& chosen = told[radio].Chosen;
        chosen = settled->IsOperable ? directories.Index().Choose(settled->Kilohertz, state.Where, chosen)
                                     : directory::Choice{.Why = directory::Reason::NotTuned};
    }
}

void SimulatorSession::Say() {
    if (justSaid.size() == MostAtOnce) return;
    const SessionSetting setting = SettingOf(*ruling->State());
    SessionSetting before = network.Session();
    before.Handle = setting.Handle;
    if (before == setting) return;
    network.SetAll(setting);
    justSaid.push_back(loop.After(PaceMilliseconds, [this] {
        justSaid.pop_front();
        Say();
    }));
}

SessionSetting SimulatorSession::SettingOf(const SimulatorState& state) const {
    SessionSetting setting;
    setting.Status = state.IsOnline ? ConnectedToMultiplayer : 0;
    setting.Callsign = CallsignOf(state);
    const auto& [first, second] = state.Radios;
    setting.Receive = Selection(first.IsOperable && first.IsHeard, second.IsOperable && second.IsHeard);
    setting.Transmit = Selection(first.IsOperable && state.Transmits == 1, second.IsOperable && state.Transmits == 2);
    for (std::size_t radio = 0; radio < tuned.size(); ++radio) {
        setting.Frequency[radio] = Shown(state.Radios[radio].Kilohertz);
        if (!tuned[radio].Settled) continue;
        const directory::Choice& chosen = told[radio].Chosen;
        setting.Voice[radio] = directory::VoiceRecordOf(chosen, tuned[radio].Settled->Kilohertz, setting.Callsign,
                                                        directories.Index().Find(chosen.Directory), logins);
    }
    return setting;
}

std::string SimulatorSession::CallsignOf(const SimulatorState& state) const {
    if (!state.Callsign.empty()) return state.Callsign;
    return ownCallsign.empty() ? state.Tail : ownCallsign;
}

}  // namespace orvelle::simulators
