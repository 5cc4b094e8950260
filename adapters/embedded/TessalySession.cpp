// The user's session on the network and its radio set: what the panel reads, and what the deck sets.
#include "adapters/embedded/Tessaly.h"

namespace orvelle {

namespace {

bool IsRadio(Long radio) { return radio == 0 || radio == 1; }

}  // namespace

Long EmbeddedTessaly::SessionHandle() { return InSession() ? session.Handle : 0; }

bool EmbeddedTessaly::OpenSession(Long handle) {
    if (!InSession() || Refuse.OpenSession) return false;
    if (handle != 0 && handle != session.Handle) return false;
    ++openSessions;
    return true;
}

void EmbeddedTessaly::CloseSession() {
    if (openSessions > 0) --openSessions;
}

Long EmbeddedTessaly::SessionStatus() { return OpenedSession().Status; }
std::string EmbeddedTessaly::SessionCallsign() { return OpenedSession().Callsign; }
std::string EmbeddedTessaly::ReceiveRadio() { return OpenedSession().Receive; }
std::string EmbeddedTessaly::TransmitRadio() { return OpenedSession().Transmit; }
std::string EmbeddedTessaly::FreqCOM1() { return OpenedSession().Frequency[0]; }
std::string EmbeddedTessaly::FreqCOM2() { return OpenedSession().Frequency[1]; }
Long EmbeddedTessaly::VoiceSoftware(Long radio) { return OpenedVoice(radio).Software; }
std::string EmbeddedTessaly::VoiceServer(Long radio) { return OpenedVoice(radio).Server; }
std::string EmbeddedTessaly::VoiceChannel(Long radio) { return OpenedVoice(radio).Channel; }
std::string EmbeddedTessaly::VoiceLogin(Long radio) { return OpenedVoice(radio).Login; }
std::string EmbeddedTessaly::VoicePassword(Long radio) { return OpenedVoice(radio).Password; }

void EmbeddedTessaly::StartSession() {
    if (session.Handle != 0) return;
    session.Handle = ++lastHandle;
    TellSession([this] { SessionOpened(); });
}

void EmbeddedTessaly::EndSession() {
    if (session.Handle == 0) return;
    const bool known = InSession();
    session.Handle = 0;
    openSessions = 0;
    if (known) RaiseLinked([this] { SessionClosed(); });
    Changed.Mark();
}

void EmbeddedTessaly::SetStatus(Long status) {
    if (session.Status == status) return;
    session.Status = status;
    TellSession([this] { SessionStatusChanged(); });
}

void EmbeddedTessaly::SetCallsign(const std::string& callsign) {
    if (session.Callsign == callsign) return;
    session.Callsign = callsign;
    TellSession([this] { CallsignChanged(); });
}

void EmbeddedTessaly::SetFrequency(Long radio, const std::string& frequency) {
    if (!IsRadio(radio)) return;
    SetRadioText(session.Frequency[static_cast<std::size_t>(radio)], frequency);
}

void EmbeddedTessaly::SetReceive(const std::string& selection) { SetRadioText(session.Receive, selection); }
void EmbeddedTessaly::SetTransmit(const std::string& selection) { SetRadioText(session.Transmit, selection); }

void EmbeddedTessaly::SetVoice(Long radio, const RadioVoiceSetting& voice) {
    if (!IsRadio(radio)) return;
    RadioVoiceSetting& setting = session.Voice[static_cast<std::size_t>(radio)];
    if (setting == voice) return;
    setting = voice;
    TellSession([this, radio] { RadioVoiceChanged(radio); });
}

void EmbeddedTessaly::SetRadioText(std::string& text, const std::string& value) {
    if (text == value) return;
    text = value;
    TellSession([this] { RadioChanged(); });
}

void EmbeddedTessaly::TellSession(std::function<void()> event) {
    if (InSession()) RaiseLinked(std::move(event));
    Changed.Mark();
}

const SessionSetting& EmbeddedTessaly::OpenedSession() const {
    static const SessionSetting None;
    return openSessions > 0 ? session : None;
}

const RadioVoiceSetting& EmbeddedTessaly::OpenedVoice(Long radio) const {
    static const RadioVoiceSetting None;
    return IsRadio(radio) ? OpenedSession().Voice[static_cast<std::size_t>(radio)] : None;
}

}  // namespace orvelle
