// The link to the network client framework, in three roles: the link itself, the user's session with its radio set,
// and the interface records in which the panels of several computers meet. Events come on the panel's thread, never
// from inside a call, except that CreateInterface may itself raise InterfaceAppeared.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/RadioSelection.h"
#include "platform/ServerNames.h"
#include "platform/Types.h"
#include "platform/VoiceSoftware.h"

namespace orvelle {

constexpr Long ConnectedToMultiplayer = 1;  // a session's status

class FrameworkLink {
public:
    virtual ~FrameworkLink() = default;

    // A host, an address, AutomaticServer or OwnServer; the control keeps it between runs, as it keeps Embedded.
    virtual void SetServer(const std::string& name) = 0;
    virtual std::string GetServer() = 0;
    virtual bool Embedded() = 0;
    virtual void Embedded(Long value) = 0;  // 0 or 1
    virtual bool LinkUp() = 0;
    // Called once each, in this order, at the load; the link connects and reconnects by itself from then on.
    virtual void LinkPrepare() = 0;
    virtual void LinkStart() = 0;
    virtual void LinkStarted() = 0;
    // At the end. The panel's records go with it; nothing is raised after it.
    virtual void LinkStop() = 0;
    // The address text, "host:port", of a voice server.
    virtual std::string ResolveServerAddress(const std::string& server) = 0;

    Event<> Connected;
    Event<> Disconnected;
    Event<const std::string&> ServerFound;
};

class NetworkSession {
public:
    virtual ~NetworkSession() = default;

    // The handle of the session; may be asked before OpenSession.
    virtual Long SessionHandle() = 0;
    // Selects a session for reading, 0 the current one. Each True is followed by one CloseSession. False without a link
    // or a session. What is read with no session open is 0 or "".
    virtual bool OpenSession(Long handle) = 0;
    virtual void CloseSession() = 0;
    virtual Long SessionStatus() = 0;  // ConnectedToMultiplayer, or another
    virtual std::string SessionCallsign() = 0;
    virtual std::string ReceiveRadio() = 0;   // of RadioSelection.h
    virtual std::string TransmitRadio() = 0;  // the same
    virtual std::string FreqCOM1() = 0;       // ready to show
    virtual std::string FreqCOM2() = 0;
    // The voice record of radio 0 (COM1) or 1 (COM2).
    virtual Long VoiceSoftware(Long radio) = 0;  // a code of VoiceSoftware.h
    virtual std::string VoiceServer(Long radio) = 0;
    virtual std::string VoiceChannel(Long radio) = 0;
    virtual std::string VoiceLogin(Long radio) = 0;
    virtual std::string VoicePassword(Long radio) = 0;

    Event<> SessionOpened;
    Event<> SessionClosed;
    Event<> SessionStatusChanged;
    Event<> RadioChanged;
    Event<Long> RadioVoiceChanged;  // radio
    Event<> CallsignChanged;
};

class InterfaceRecords {
public:
    virtual ~InterfaceRecords() = default;

    // Creates a record of this panel and leaves it open, to be closed by CloseInterface; its id, or 0 if none was made.
    virtual Long CreateInterface(const std::string& type, const std::string& role) = 0;
    virtual void DeleteInterface(Long id) = 0;  // of this panel's own; another is left alone
    // Opens a record for reading and writing; one is open at a time. False if there is no such record.
    virtual bool OpenInterface(Long id) = 0;
    // Harmless where nothing is open.
    virtual void CloseInterface() = 0;
    virtual std::string InterfaceType() = 0;
    virtual std::string InterfaceRole() = 0;
    virtual bool InterfaceIsLocal() = 0;
    // Numbered parameters of the open record; the texts are a table of their own beside the integers. What was never
    // written is 0 or "", and so is everything with nothing open, where a write is dropped. The panel's own writes come
    // back by no event.
    virtual Long GetParam(Long index) = 0;
    virtual void SetParam(Long index, Long value) = 0;
    virtual std::string GetParamText(Long index) = 0;
    virtual void SetParamText(Long index, const std::string& text) = 0;

    Event<Long> InterfaceAppeared;  // id; again for a record that stays when another one of its role goes
    Event<Long> InterfaceChanged;
    Event<Long> InterfaceRemoved;
    Event<Long, Long> InterfaceParamChanged;  // id, index
};

class TessalyControl : public FrameworkLink, public NetworkSession, public InterfaceRecords {};

}  // namespace orvelle
