// The panel's end of the framework link, whatever medium it goes over: the one TessalyControl. It keeps the server and
// Embedded between runs, chooses the line that leads to the server, starts and stops the link, and holds the panel's
// copy of the session and of the interface records: what a line says is compared with the copy, and each difference is
// told as its event. Events come from the loop. Main thread only; a refusal shows as the result that the control's own
// header tells. The lines outlive it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "adapters/ends/LineTable.h"
#include "adapters/shared/Delivery.h"
#include "platform/FrameworkLine.h"
#include "platform/Tessaly.h"

namespace orvelle {
class ControlValues;
}  // namespace orvelle

namespace orvelle::ends {

class FrameworkEnd : public TessalyControl {
public:
    // `controlValues` keeps the server and Embedded.
    FrameworkEnd(EventLoop& loop, ControlValues& controlValues, const LineTable<FrameworkLine>& lineTable);
    FrameworkEnd(const FrameworkEnd&) = delete;
    FrameworkEnd& operator=(const FrameworkEnd&) = delete;
    ~FrameworkEnd() override;

    // The link. The records of this panel live as long as the link is started, whether it stands or not; a change to
    // another line removes them, and all others, for the panel to make its own anew.
    void SetServer(const std::string& name) override;
    std::string GetServer() override;  // AutomaticServer until one was set
    bool Embedded() override;
    void Embedded(Long value) override;
    bool LinkUp() override { return isUp; }
    void LinkPrepare() override {}
    void LinkStart() override;
    void LinkStarted() override {}
    void LinkStop() override;  // nothing is raised after it
    // The server with ":8767" behind it, unless it names a port.
    std::string ResolveServerAddress(const std::string& server) override;

    // The table may have changed: goes over to the line that the server leads to now.
    void ChooseLine();

    // A sentence about texts from the network that would not stay data in a voice program's command line or URL, once
    // for each content: a record that holds such (VoiceTexts.h) counts for the panel as none. So do both while the
    // callsign is such a text, and the callsign as "", since nobody shall be on a channel without a name.
    Event<const std::string&> Refused;

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
    // brings InterfaceRemoved from the loop. The panel's own writes to its records are not echoed to it; what it writes
    // to another's record shows when that record is said again.
    Long CreateInterface(const std::string& type, const std::string& role) override;
    void DeleteInterface(Long id) override;  // own records only
    bool OpenInterface(Long id) override;    // other computers' records while the link stands
    void CloseInterface() override { openRecord = 0; }
    std::string InterfaceType() override;
    std::string InterfaceRole() override;
    bool InterfaceIsLocal() override;
    Long GetParam(Long index) override;
    void SetParam(Long index, Long value) override;
    std::string GetParamText(Long index) override;
    void SetParamText(Long index, const std::string& text) override;

private:
    struct Record {
        RecordContent Content;
        bool IsLocal = false;
        bool Told = false;   // the panel was told of it
        bool Ended = false;  // by the panel, which is still to be told
    };

    void OpenLine();
    void CloseLine();
    void Lose();
    void ForgetRecords();
    void TellOfForgotten();

    bool InSession() const { return isUp && session.Handle != 0; }
    const SessionSetting& OpenedSession() const;
    const RadioVoiceSetting& OpenedVoice(Long radio) const;
    void HearSession(const SessionSetting& whole);
    SessionSetting WithoutRefused(const SessionSetting& said);

    Record* Find(Long id);
    Record* OpenRecord() { return Find(openRecord); }
    void TellOwnRecord(Long id);
    void HearRecord(Long id, const RecordContent& said);
    void HearRecordEnded(Long id);
    void HearWrite(Long id, const RecordParameters& written);
    void HearRecordTaken(Long id);
    void RecallAnother(Long leaving);
    void WriteToOpenRecord(const RecordParameters& written);

    Delivery delivery;
    ControlValues& values;
    const LineTable<FrameworkLine>& lines;
    FrameworkLine* line = nullptr;  // while started
    bool isUp = false;
    SessionSetting session;  // without what is refused of it
    SessionSetting refused;  // callsign and records that were told of last
    Long openSessions = 0;
    std::map<Long, Record> records;
    std::vector<Long> leaving;  // records of a line that was left, of which the panel is still to be told
    Long openRecord = 0;
};

}  // namespace orvelle::ends
