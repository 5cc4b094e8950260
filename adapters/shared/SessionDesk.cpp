#include "adapters/shared/SessionDesk.h"

namespace orvelle {

namespace {

bool IsRadio(Long radio) { return radio == 0 || radio == 1; }

}  // namespace

void SessionDesk::StartSession() {
    if (session.Handle != 0) return;
    session.Handle = ++lastHandle;
    SaySession();
}

void SessionDesk::EndSession() {
    if (session.Handle == 0) return;
    session.Handle = 0;
    SaySession();
}

void SessionDesk::SetStatus(Long status) {
    if (session.Status == status) return;
    session.Status = status;
    SaySession();
}

void SessionDesk::SetFrequency(Long radio, const std::string& frequency) {
    if (IsRadio(radio)) ChangeText(session.Frequency[static_cast<std::size_t>(radio)], frequency);
}

void SessionDesk::SetVoice(Long radio, const RadioVoiceSetting& voice) {
    if (!IsRadio(radio)) return;
    RadioVoiceSetting& setting = session.Voice[static_cast<std::size_t>(radio)];
    if (setting == voice) return;
    setting = voice;
    SaySession();
}

void SessionDesk::SetAll(const SessionSetting& setting) {
    SessionSetting next = setting;
    next.Handle = session.Handle;
    if (session == next) return;
    session = next;
    SaySession();
}

void SessionDesk::ChangeText(std::string& text, const std::string& value) {
    if (text == value) return;
    text = value;
    SaySession();
}

}  // namespace orvelle
