// The user's session on the network as it is set by hand or by a simulator, whichever medium carries it: the part of
// the framework link's far side that every medium has alike. A medium says the session after each change.
#pragma once

#include <string>

#include "platform/sides/NetworkSide.h"

namespace orvelle {

class SessionDesk : public NetworkSide {
public:
    void StartSession() override;
    void EndSession() override;
    const SessionSetting& Session() const override { return session; }
    void SetStatus(Long status) override;
    void SetCallsign(const std::string& callsign) override { ChangeText(session.Callsign, callsign); }
    void SetFrequency(Long radio, const std::string& frequency) override;
    void SetReceive(const std::string& selection) override { ChangeText(session.Receive, selection); }
    void SetTransmit(const std::string& selection) override { ChangeText(session.Transmit, selection); }
    void SetVoice(Long radio, const RadioVoiceSetting& voice) override;
    void SetAll(const SessionSetting& setting) override;

protected:
    // Sessions have the handles above this one.
    explicit SessionDesk(Long handleBefore = 0) : lastHandle(handleBefore) {}

private:
    virtual void SaySession() = 0;  // the medium's

    void ChangeText(std::string& text, const std::string& value);

    SessionSetting session;
    Long lastHandle;
};

}  // namespace orvelle
