// The framework link: its two kept values, the choice of the line, start and stop.
#include "adapters/ends/FrameworkEnd.h"

#include "platform/ControlValues.h"
#include "platform/ServerNames.h"

namespace orvelle::ends {

namespace {

constexpr const char* ServerValue = "Tessaly.Server";
constexpr const char* EmbeddedValue = "Tessaly.Embedded";
constexpr const char* TeamSpeakPort = ":8767";

}  // namespace

FrameworkEnd::FrameworkEnd(EventLoop& loop, ControlValues& controlValues, const LineTable<FrameworkLine>& lineTable)
    : delivery(loop), values(controlValues), lines(lineTable) {}

FrameworkEnd::~FrameworkEnd() { LinkStop(); }

void FrameworkEnd::SetServer(const std::string& name) {
    values.SetControlValue(ServerValue, name);
    ChooseLine();
}

std::string FrameworkEnd::GetServer() { return values.GetControlValue(ServerValue, AutomaticServer); }
bool FrameworkEnd::Embedded() { return values.GetControlValue(EmbeddedValue, "0") != "0"; }
void FrameworkEnd::Embedded(Long value) { values.SetControlValue(EmbeddedValue, value != 0 ? "1" : "0"); }

void FrameworkEnd::LinkStart() {
    if (!line) OpenLine();
}

void FrameworkEnd::LinkStop() {
    if (!line) return;
    CloseLine();
    delivery.Drop();
    isUp = false;
    session = {};
    openSessions = 0;
    records.clear();
    leaving.clear();
    openRecord = 0;
}

std::string FrameworkEnd::ResolveServerAddress(const std::string& server) {
    return server.find(':') == std::string::npos ? server + TeamSpeakPort : server;
}

void FrameworkEnd::ChooseLine() {
    if (!line) return;
    if (&lines.For(GetServer()) == line) return line->Open(GetServer());
    CloseLine();
    delivery.Drop();
    ForgetRecords();
    // Before anything that the new line brings.
    delivery.Raise([this] {
        Lose();
        TellOfForgotten();
    });
    OpenLine();
}

void FrameworkEnd::OpenLine() {
    line = &lines.For(GetServer());
    line->Up = [this] {
        isUp = true;
        Connected();
    };
    line->Lost = [this] { Lose(); };
    line->ServerFound = [this](const std::string& name) { ServerFound(name); };
    line->SessionSaid = [this](const SessionSetting& said) { HearSession(said); };
    line->RecordSaid = [this](Long id, const RecordContent& said) { HearRecord(id, said); };
    line->RecordEnded = [this](Long id) { HearRecordEnded(id); };
    line->RecordAnnounced = [this](Long id) {
        if (Find(id)) InterfaceChanged(id);
    };
    line->WriteSaid = [this](Long id, const RecordParameters& written) { HearWrite(id, written); };
    line->RecordTaken = [this](Long id) { HearRecordTaken(id); };
    line->Open(GetServer());
}

void FrameworkEnd::CloseLine() {
    line->Close();
    line->Up = nullptr;
    line->Lost = nullptr;
    line->ServerFound = nullptr;
    line->SessionSaid = nullptr;
    line->RecordSaid = nullptr;
    line->RecordEnded = nullptr;
    line->RecordAnnounced = nullptr;
    line->WriteSaid = nullptr;
    line->RecordTaken = nullptr;
    line = nullptr;
}

// The loss ends the session without an event of its own. Records stay known: they may be there when the link is back.
void FrameworkEnd::Lose() {
    if (!isUp) return;
    isUp = false;
    session = {};
    openSessions = 0;
    Disconnected();
}

}  // namespace orvelle::ends
