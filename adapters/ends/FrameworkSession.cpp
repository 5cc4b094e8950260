// The panel's copy of its user's session on the network.
#include <utility>

#include "adapters/ends/FrameworkEnd.h"
#include "adapters/shared/VoiceTexts.h"

namespace orvelle::ends {

namespace {

bool SameRadios(const SessionSetting& one, const SessionSetting& other) {
    return one.Frequency == other.Frequency && one.Receive == other.Receive && one.Transmit == other.Transmit;
}

}  // namespace

Long FrameworkEnd::SessionHandle() { return InSession() ? session.Handle : 0; }

bool FrameworkEnd::OpenSession(Long handle) {
    if (!InSession() || !line || !line->LetsOpenSession()) return false;
    if (handle != 0 && handle != session.Handle) return false;
    ++openSessions;
    return true;
}

void FrameworkEnd::CloseSession() {
    if (openSessions > 0) --openSessions;
}

Long FrameworkEnd::SessionStatus() { return OpenedSession().Status; }
std::string FrameworkEnd::SessionCallsign() { return OpenedSession().Callsign; }
std::string FrameworkEnd::ReceiveRadio() { return OpenedSession().Receive; }
std::string FrameworkEnd::TransmitRadio() { return OpenedSession().Transmit; }
std::string FrameworkEnd::FreqCOM1() { return OpenedSession().Frequency[0]; }
std::string FrameworkEnd::FreqCOM2() { return OpenedSession().Frequency[1]; }
Long FrameworkEnd::VoiceSoftware(Long radio) { return OpenedVoice(radio).Software; }
std::string FrameworkEnd::VoiceServer(Long radio) { return OpenedVoice(radio).Server; }
std::string FrameworkEnd::VoiceChannel(Long radio) { return OpenedVoice(radio).Channel; }
std::string FrameworkEnd::VoiceLogin(Long radio) { return OpenedVoice(radio).Login; }
std::string FrameworkEnd::VoicePassword(Long radio) { return OpenedVoice(radio).Password; }

const SessionSetting& FrameworkEnd::OpenedSession() const {
    static const SessionSetting None;
    return openSessions > 0 ? session : None;
}

const RadioVoiceSetting& FrameworkEnd::OpenedVoice(Long radio) const {
    static const RadioVoiceSetting None;
    const bool isRadio = radio == 0 || radio == 1;
    return isRadio ? OpenedSession().Voice[static_cast<std::size_t>(radio)] : None;
}

// Another session is the end of the one before. Of one session each kind of change is told once.
void FrameworkEnd::HearSession(const SessionSetting& whole) {
    const SessionSetting said = WithoutRefused(whole);
    const SessionSetting before = session;
    if (said.Handle != before.Handle) {
        session = {};
        openSessions = 0;
        if (before.Handle != 0) SessionClosed();
        session = said;
        if (said.Handle != 0) SessionOpened();
        return;
    }
    session = said;
    if (said.Handle == 0) return;
    if (said.Status != before.Status) SessionStatusChanged();
    if (said.Callsign != before.Callsign) CallsignChanged();
    for (const Long radio : {0, 1})
        if (said.Voice[static_cast<std::size_t>(radio)] != before.Voice[static_cast<std::size_t>(radio)])
            RadioVoiceChanged(radio);
    if (!SameRadios(said, before)) RadioChanged();
}

SessionSetting FrameworkEnd::WithoutRefused(const SessionSetting& said) {
    SessionSetting rest = said;
    if (!IsAllowedCallsign(said.Callsign)) {
        rest.Callsign = "";
        rest.Voice = {};
        if (std::exchange(refused.Callsign, said.Callsign) != said.Callsign)
            Refused("The session's callsign was refused with the voice records of both radios: it " + CallsignRule() +
                    ".");
        return rest;
    }
    for (std::size_t radio = 0; radio < said.Voice.size(); ++radio) {
        const RadioVoiceSetting& record = said.Voice[radio];
        const Refusal refusal = RefusalOf(record);
        if (refusal.Part.empty()) continue;
        rest.Voice[radio] = {};
        if (std::exchange(refused.Voice[radio], record) != record)
            Refused("The voice record of COM" + std::to_string(radio + 1) + " was refused: its " + refusal.Part + " " +
                    refusal.Rule + ".");
    }
    return rest;
}

}  // namespace orvelle::ends
