// The far side of the framework link: the user's session on the network and its radio set.
#include "adapters/embedded/NetworkLink.h"

namespace orvelle::embedded {

namespace {

bool IsRadio(Long radio) { return radio == 0 || radio == 1; }

}  // namespace

void NetworkLink::StartSession() {
    if (session.Handle != 0) return;
    session.Handle = ++lastHandle;
    SaySession();
}

void NetworkLink::EndSession() {
    if (session.Handle == 0) return;
    session.Handle = 0;
    SaySession();
}

void NetworkLink::SetStatus(Long status) {
    if (session.Status == status) return;
    session.Status = status;
    SaySession();
}

void NetworkLink::SetCallsign(const std::string& callsign) { ChangeText(session.Callsign, callsign); }

void NetworkLink::SetFrequency(Long radio, const std::string& frequency) {
    if (IsRadio(radio)) ChangeText(session.Frequency[static_cast<std::size_t>(radio)], frequency);
}

void NetworkLink::SetReceive(const std::string& selection) { ChangeText(session.Receive, selection); }
void NetworkLink::SetTransmit(const std::string& selection) { ChangeText(session.Transmit, selection); }

void NetworkLink::SetVoice(Long radio, const RadioVoiceSetting& voice) {
    if (!IsRadio(radio)) return;
    RadioVoiceSetting& setting = session.Voice[static_cast<std::size_t>(radio)];
    if (setting == voice) return;
    setting = voice;
    SaySession();
}

void NetworkLink::ChangeText(std::string& text, const std::string& value) {
    if (text == value) return;
    text = value;
    SaySession();
}

void NetworkLink::SaySession() {
    MarkChange();
    SayWhileUp([this, said = session] { SessionSaid(said); });
}

}  // namespace orvelle::embedded
