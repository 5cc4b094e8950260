// The framework link inside this process: the panel holds it as its TessalyControl; the deck plays the network, the
// session with its radio set, and the other computers with their interface records. Events come from the loop, never
// from inside a call. Main thread only; a refusal shows as the result that the control's own header tells.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Tessaly.h"
#include "platform/VoiceRoles.h"
#include "platform/embedded/Changes.h"
#include "platform/embedded/Delivery.h"
#include "platform/embedded/LinkState.h"

namespace orvelle {

class ControlValues;

struct RadioVoiceSetting {
    Long Software = NoVoice;
    std::string Server;
    std::string Channel;
    std::string Login;
    std::string Password;
    bool operator==(const RadioVoiceSetting&) const = default;
};

// The session as the network has it. It outlives a loss of the link.
struct SessionSetting {
    Long Handle = 0;  // 0: no session
    Long Status = 0;  // ConnectedToMultiplayer, or another
    std::string Callsign;
    std::string Receive;   // of RadioSelection.h
    std::string Transmit;  // the same
    std::array<std::string, 2> Frequency;
    std::array<RadioVoiceSetting, 2> Voice;
};

enum class ParameterWriter { Panel, OtherParty };

// The number of a write counts all writes to all records from 1, so that the greatest are the latest.
template <typename Value>
struct ParameterSetting {
    Value Content{};
    std::size_t WriteNumber = 0;
    ParameterWriter Writer = ParameterWriter::Panel;
};

struct InterfaceRecord {
    std::string Owner;  // the computer that made it, "" this one
    std::string Type;
    std::string Role;
    bool IsLocal = false;
    std::map<Long, ParameterSetting<Long>> Parameters{};
    std::map<Long, ParameterSetting<std::string>> Texts{};
    bool Announced = false;  // the panel was told of it
    bool Dropped = false;    // gone; its id is free again when the panel was told
};

class EmbeddedTessaly : public TessalyControl {
public:
    // `controlValues` keeps the server and Embedded between runs.
    EmbeddedTessaly(EventLoop& loop, ControlValues& controlValues);

    // The link. The records of this panel live as long as the link is started, whether it stands or not.
    void SetServer(const std::string& name) override;
    std::string GetServer() override;  // AutomaticServer until one was set
    bool Embedded() override;
    void Embedded(Long value) override;
    bool LinkUp() override;
    void LinkPrepare() override;
    void LinkStart() override;
    void LinkStarted() override;
    void LinkStop() override;  // nothing is raised after it
    // The server with ":8767" behind it, unless it names a port.
    std::string ResolveServerAddress(const std::string& server) override;

    // The session. It can be opened while the link stands and there is one; its members answer while it is open.
    Long SessionHandle() override;
    bool OpenSession(Long handle) override;
    void CloseSession() override;
    Long SessionStatus() override;
    std::string SessionCallsign() override;
    std::string ReceiveRadio() override;
    std::string TransmitRadio() override;
    std::string FreqCOM1() override;
    std::string FreqCOM2() override;
    Long VoiceSoftware(Long radio) override;
    std::string VoiceServer(Long radio) override;
    std::string VoiceChannel(Long radio) override;
    std::string VoiceLogin(Long radio) override;
    std::string VoicePassword(Long radio) override;

    // The records. CreateInterface works from LinkStart on; its InterfaceAppeared comes from the loop. Deleting one
    // brings InterfaceRemoved from the loop. The panel's own parameter writes are not echoed to it.
    Long CreateInterface(const std::string& type, const std::string& role) override;
    void DeleteInterface(Long id) override;  // own records only
    bool OpenInterface(Long id) override;
    void CloseInterface() override;
    std::string InterfaceType() override;
    std::string InterfaceRole() override;
    bool InterfaceIsLocal() override;
    Long GetParam(Long index) override;
    void SetParam(Long index, Long value) override;
    std::string GetParamText(Long index) override;
    void SetParamText(Long index, const std::string& text) override;

    // The deck's side of the link. A link wanted up stands once the panel has started it.
    void SetLink(LinkState state);
    LinkState Link() const { return link; }  // as wanted; LinkUp is what the panel knows
    bool Started() const { return started; }
    void SeeServer(const std::string& name);
    const std::vector<std::string>& ServersSeen() const { return serversSeen; }
    void SetDelay(Long milliseconds) { delivery.SetDelay(milliseconds); }
    Long Delay() const { return delivery.Delay(); }

    // The deck's side of the session. Each change raises its event while the link stands and there is a session; a
    // value that does not change raises nothing. A link that comes up with a session there brings SessionOpened.
    void StartSession();  // with the next handle; the rest as it was set
    void EndSession();
    const SessionSetting& Session() const { return session; }
    void SetStatus(Long status);
    void SetCallsign(const std::string& callsign);
    void SetFrequency(Long radio, const std::string& frequency);  // radio 0 or 1; another is ignored
    void SetReceive(const std::string& selection);
    void SetTransmit(const std::string& selection);
    void SetVoice(Long radio, const RadioVoiceSetting& voice);

    // The deck's side of the records: other computers and other parties. Writes reach a record while the link stands.
    Long Claim(const std::string& owner, const std::string& role,
               const std::string& type = VoiceRecordType);  // the new id
    bool DropClaim(Long id);                                // False for a record of this panel or none
    bool AnnounceChange(Long id);                           // raises InterfaceChanged
    bool WriteParameter(Long id, Long index, Long value);
    bool WriteText(Long id, Long index, const std::string& text);
    std::map<Long, InterfaceRecord> Records() const;  // those that are there, by id
    std::size_t Writes() const { return writes; }

    // Failures on demand
    struct Refusals {
        bool OpenSession = false;
        bool CreateInterface = false;
        bool OpenInterface = false;
    };
    Refusals Refuse;

    Changes Changed;

private:
    bool LinkCanStand() const { return started && link == LinkState::Up; }
    void ComeUp();
    void GoDown();
    void RaiseLinked(std::function<void()> event);  // brought only if the link stands then

    bool InSession() const { return linkUp && session.Handle != 0; }
    const SessionSetting& OpenedSession() const;
    const RadioVoiceSetting& OpenedVoice(Long radio) const;
    void SetRadioText(std::string& text, const std::string& value);
    void TellSession(std::function<void()> event);

    Long AddRecord(InterfaceRecord record);
    void Remove(Long id);
    InterfaceRecord* Find(Long id);
    InterfaceRecord* OpenRecord() { return Find(openRecord); }
    bool Reachable(Long id);  // by the deck
    void TellRecord(Long id);
    void TellOfRecords();  // what other computers did while the link was down
    void TellParameter(Long id, Long index);

    Delivery delivery;
    ControlValues& values;
    LinkState link = LinkState::Down;
    bool started = false;
    bool linkUp = false;
    std::vector<std::string> serversSeen;
    SessionSetting session;
    Long lastHandle = 0;
    Long openSessions = 0;
    std::map<Long, InterfaceRecord> records;
    Long openRecord = 0;
    std::size_t writes = 0;
};

}  // namespace orvelle
