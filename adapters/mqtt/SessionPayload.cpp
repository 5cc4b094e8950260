// The user's session on the network.
#include <array>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Payloads.h"
#include "platform/RadioSelection.h"

namespace orvelle::mqtt {

namespace {

bool IsSelection(const std::string& text) {
    return text == SelectsCom1 || text == SelectsCom2 || text == SelectsBoth || text == SelectsNone;
}

std::string ReadSelection(const Members& members, const char* name) {
    std::string selection = members.Text(name);
    if (!IsSelection(selection)) members.Refuse();
    return selection;
}

// Any other text selects none.
std::string Selection(const std::string& text) { return IsSelection(text) ? text : SelectsNone; }

JsonWriting WriteRadio(const std::string& frequency, const RadioVoiceSetting& voice) {
    JsonWriting writing;
    writing.Text("frequency", frequency);
    writing.Number("software", voice.Software);
    writing.Text("server", voice.Server);
    writing.Text("channel", voice.Channel);
    writing.Text("login", voice.Login);
    writing.Text("password", voice.Password);
    return writing;
}

}  // namespace

std::optional<SessionSetting> ReadSession(std::string_view payload) {
    if (payload.empty()) return SessionSetting{};
    JsonReading reading(payload);
    const Members members = reading.Object();
    SessionSetting session;
    session.Handle = members.Number("handle", 1, bounds::GreatestNumber);
    session.Status = members.Number("status", bounds::LeastNumber, bounds::GreatestNumber);
    session.Callsign = members.Text("callsign");
    session.Receive = ReadSelection(members, "receive");
    session.Transmit = ReadSelection(members, "transmit");
    const std::vector<Members> radios = members.Objects("radios", session.Voice.size());
    for (std::size_t radio = 0; radio < radios.size(); ++radio) {
        session.Frequency[radio] = radios[radio].Text("frequency");
        RadioVoiceSetting& voice = session.Voice[radio];
        voice.Software = radios[radio].Number("software", bounds::LeastNumber, bounds::GreatestNumber);
        voice.Server = radios[radio].Text("server");
        voice.Channel = radios[radio].Text("channel");
        voice.Login = radios[radio].Text("login");
        voice.Password = radios[radio].Text("password");
    }
    return reading.Taken(session);
}

std::string WriteSession(const SessionSetting& session) {
    if (session.Handle <= 0) return "";
    JsonWriting writing;
    writing.Number("handle", session.Handle);
    writing.Number("status", session.Status);
    writing.Text("callsign", session.Callsign);
    writing.Text("receive", Selection(session.Receive));
    writing.Text("transmit", Selection(session.Transmit));
    writing.Objects("radios", {WriteRadio(session.Frequency[0], session.Voice[0]),
                               WriteRadio(session.Frequency[1], session.Voice[1])});
    return writing.Whole();
}

}  // namespace orvelle::mqtt
