// The interface records: the panel's own, as it says them, and those of other computers.
#include <utility>

#include "adapters/embedded/NetworkLink.h"

namespace orvelle::embedded {

namespace {

RecordContent ContentOf(const InterfaceRecord& record) {
    RecordContent content{record.Type, record.Role, {}};
    for (const auto& [index, number] : record.Parameters) content.Parameters.Numbers[index] = number.Content;
    for (const auto& [index, text] : record.Texts) content.Parameters.Texts[index] = text.Content;
    return content;
}

}  // namespace

Long NetworkLink::NewRecordId() {
    if (!IsOpen() || refuse.CreateInterface) return 0;
    Long id = 1;
    while (records.contains(id)) ++id;
    return id;
}

void NetworkLink::SayRecord(Long id, const RecordContent& content, const RecordParameters& written) {
    InterfaceRecord& record = records[id].Record;
    record.Type = content.Type;
    record.Role = content.Role;
    record.IsLocal = true;
    Enter(record, written, ParameterWriter::Panel);
}

void NetworkLink::SayRecordEnded(Long id) {
    records.erase(id);
    MarkChange();
}

void NetworkLink::SayWrite(Long id, const RecordParameters& written) {
    Entry* entry = Find(id);
    if (!entry) return;
    Enter(entry->Record, written, ParameterWriter::Panel);
    SayForeignRecord(id);
}

Long NetworkLink::Claim(const std::string& owner, const std::string& role, const std::string& type) {
    Long id = 1;
    while (records.contains(id)) ++id;
    records[id].Record = {.Owner = owner, .Type = type, .Role = role};
    SayForeignRecord(id);
    return id;
}

bool NetworkLink::DropClaim(Long id) {
    Entry* entry = Find(id);
    if (!entry || entry->Record.IsLocal) return false;
    entry->Dropped = true;
    if (entry->Said)
        SayForeignRecord(id);
    else
        records.erase(id);
    MarkChange();
    return true;
}

bool NetworkLink::AnnounceChange(Long id) {
    if (!Reachable(id)) return false;
    SayWhileUp([this, id] { RecordAnnounced(id); });
    return true;
}

bool NetworkLink::WriteParameter(Long id, Long index, Long value) { return Write(id, {{{index, value}}, {}}); }

bool NetworkLink::WriteText(Long id, Long index, const std::string& text) { return Write(id, {{}, {{index, text}}}); }

std::map<Long, InterfaceRecord> NetworkLink::Records() const {
    std::map<Long, InterfaceRecord> present;
    for (const auto& [id, entry] : records)
        if (!entry.Dropped) present.emplace(id, entry.Record);
    return present;
}

NetworkLink::Entry* NetworkLink::Find(Long id) {
    const auto found = records.find(id);
    return found != records.end() && !found->second.Dropped ? &found->second : nullptr;
}

NetworkLink::Entry* NetworkLink::Reachable(Long id) { return IsUp() && Link() == LinkState::Up ? Find(id) : nullptr; }

void NetworkLink::Enter(InterfaceRecord& record, const RecordParameters& written, ParameterWriter writer) {
    for (const auto& [index, number] : written.Numbers) record.Parameters[index] = {number, ++writes, writer};
    for (const auto& [index, text] : written.Texts) record.Texts[index] = {text, ++writes, writer};
    MarkChange();
}

// The panel owns its records: it takes the write, and says the record.
bool NetworkLink::Write(Long id, const RecordParameters& written) {
    Entry* entry = Reachable(id);
    if (!entry) return false;
    Enter(entry->Record, written, ParameterWriter::OtherParty);
    if (entry->Record.IsLocal)
        SayWhileUp([this, id, written] { WriteSaid(id, written); });
    else
        SayForeignRecord(id);
    return true;
}

void NetworkLink::SayForeignRecord(Long id) {
    MarkChange();
    SayWhileUp([this, id] {
        const auto found = records.find(id);
        if (found == records.end()) return;
        if (found->second.Dropped) {
            records.erase(found);
            RecordEnded(id);
        } else {
            found->second.Said = true;
            RecordSaid(id, ContentOf(found->second.Record));
        }
    });
}

}  // namespace orvelle::embedded
