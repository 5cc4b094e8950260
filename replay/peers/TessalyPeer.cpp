#include "replay/peers/TessalyPeer.h"

namespace orvelle::replay {

void TessalyPeer::SetServer(const std::string& name) {
    Call("SetServer", {name});
    Keep(server, name);
}

std::string TessalyPeer::GetServer() { return Ask("GetServer", {}, server.Held, server.Since); }

bool TessalyPeer::Embedded() { return ReadProperty("Embedded", embedded.Held, embedded.Since); }

void TessalyPeer::Embedded(Long value) {
    WriteProperty("Embedded", value);
    Keep(embedded, value != 0);
}

bool TessalyPeer::LinkUp() { return Ask("LinkUp", {}, false); }

void TessalyPeer::LinkPrepare() { Call("LinkPrepare"); }

void TessalyPeer::LinkStart() { Call("LinkStart"); }

void TessalyPeer::LinkStarted() { Call("LinkStarted"); }

void TessalyPeer::LinkStop() { Call("LinkStop"); }

std::string TessalyPeer::ResolveServerAddress(const std::string& name) {
    return Ask<std::string>("ResolveServerAddress", {name}, "");
}

Long TessalyPeer::SessionHandle() { return Ask<Long>("SessionHandle", {}, 0); }

bool TessalyPeer::OpenSession(Long handle) { return Ask("OpenSession", {handle}, false); }

void TessalyPeer::CloseSession() { Call("CloseSession"); }

Long TessalyPeer::SessionStatus() { return Ask<Long>("SessionStatus", {}, 0); }

std::string TessalyPeer::SessionCallsign() { return Ask<std::string>("SessionCallsign", {}, ""); }

std::string TessalyPeer::ReceiveRadio() { return Ask<std::string>("ReceiveRadio", {}, ""); }

std::string TessalyPeer::TransmitRadio() { return Ask<std::string>("TransmitRadio", {}, ""); }

std::string TessalyPeer::FreqCOM1() { return Ask<std::string>("FreqCOM1", {}, ""); }

std::string TessalyPeer::FreqCOM2() { return Ask<std::string>("FreqCOM2", {}, ""); }

Long TessalyPeer::VoiceSoftware(Long radio) { return Ask<Long>("VoiceSoftware", {radio}, 0); }

std::string TessalyPeer::VoiceServer(Long radio) { return Ask<std::string>("VoiceServer", {radio}, ""); }

std::string TessalyPeer::VoiceChannel(Long radio) { return Ask<std::string>("VoiceChannel", {radio}, ""); }

std::string TessalyPeer::VoiceLogin(Long radio) { return Ask<std::string>("VoiceLogin", {radio}, ""); }

std::string TessalyPeer::VoicePassword(Long radio) { return Ask<std::string>("VoicePassword", {radio}, ""); }

}  // namespace orvelle::replay
