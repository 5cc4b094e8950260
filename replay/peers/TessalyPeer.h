// The scripted link to the network client framework, its session and its interface records. No call raises an event.
#pragma once

#include <optional>

#include "platform/Tessaly.h"
#include "replay/Peer.h"
#include "replay/peers/InterfaceRecordTable.h"

namespace orvelle::replay {

class TessalyPeer final : public TessalyControl, private Peer {
public:
    using Peer::Peer;

    void SetServer(const std::string& name) override;
    std::string GetServer() override;
    bool Embedded() override;
    void Embedded(Long value) override;
    bool LinkUp() override;
    void LinkPrepare() override;
    void LinkStart() override;
    void LinkStarted() override;
    void LinkStop() override;
    std::string ResolveServerAddress(const std::string& server) override;

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

    Long CreateInterface(const std::string& type, const std::string& role) override;
    void DeleteInterface(Long id) override;
    bool OpenInterface(Long id) override;
    void CloseInterface() override;
    std::string InterfaceType() override;
    std::string InterfaceRole() override;
    bool InterfaceIsLocal() override;
    Long GetParam(Long index) override;
    void SetParam(Long index, Long value) override;
    std::string GetParamText(Long index) override;
    void SetParamText(Long index, const std::string& text) override;

    // What other parties do to the records; no event follows by itself.
    const InterfaceRecordTable& Table() const { return table; }
    void PutRecord(Long id, const InterfaceRecord& record) { table.Records.insert_or_assign(id, record); }
    void DropRecord(Long id) { table.Drop(id); }
    void PutParam(Long id, Long index, Long value) { Keep(table.Params[{id, index}], value); }
    void PutParamText(Long id, Long index, const std::string& text) { Keep(table.ParamTexts[{id, index}], text); }

private:
    const InterfaceRecord* OpenRecord() const;

    Kept<std::string> server{AutomaticServer};
    Kept<bool> embedded{false};
    InterfaceRecordTable table;
    std::optional<Long> openId;
};

}  // namespace orvelle::replay
