// The interface records: the panel's own, and those of other computers, which the deck plays.
#include "adapters/embedded/Tessaly.h"

namespace orvelle {

Long EmbeddedTessaly::CreateInterface(const std::string& type, const std::string& role) {
    if (!started || Refuse.CreateInterface) return 0;
    openRecord = AddRecord({.Owner = "", .Type = type, .Role = role, .IsLocal = true});
    return openRecord;
}

void EmbeddedTessaly::DeleteInterface(Long id) {
    const InterfaceRecord* record = Find(id);
    if (record && record->IsLocal) Remove(id);
}

bool EmbeddedTessaly::OpenInterface(Long id) {
    const InterfaceRecord* record = Find(id);
    if (!record || Refuse.OpenInterface || !(record->IsLocal || linkUp)) return false;
    openRecord = id;
    return true;
}

void EmbeddedTessaly::CloseInterface() { openRecord = 0; }

std::string EmbeddedTessaly::InterfaceType() {
    const InterfaceRecord* record = OpenRecord();
    return record ? record->Type : "";
}

std::string EmbeddedTessaly::InterfaceRole() {
    const InterfaceRecord* record = OpenRecord();
    return record ? record->Role : "";
}

bool EmbeddedTessaly::InterfaceIsLocal() {
    const InterfaceRecord* record = OpenRecord();
    return record && record->IsLocal;
}

Long EmbeddedTessaly::GetParam(Long index) {
    const InterfaceRecord* record = OpenRecord();
    if (!record) return 0;
    const auto found = record->Parameters.find(index);
    return found != record->Parameters.end() ? found->second.Content : 0;
}

void EmbeddedTessaly::SetParam(Long index, Long value) {
    InterfaceRecord* record = OpenRecord();
    if (!record) return;
    record->Parameters[index] = {value, ++writes, ParameterWriter::Panel};
    Changed.Mark();
}

std::string EmbeddedTessaly::GetParamText(Long index) {
    const InterfaceRecord* record = OpenRecord();
    if (!record) return "";
    const auto found = record->Texts.find(index);
    return found != record->Texts.end() ? found->second.Content : "";
}

void EmbeddedTessaly::SetParamText(Long index, const std::string& text) {
    InterfaceRecord* record = OpenRecord();
    if (!record) return;
    record->Texts[index] = {text, ++writes, ParameterWriter::Panel};
    Changed.Mark();
}

Long EmbeddedTessaly::Claim(const std::string& owner, const std::string& role, const std::string& type) {
    return AddRecord({.Owner = owner, .Type = type, .Role = role});
}

bool EmbeddedTessaly::DropClaim(Long id) {
    const InterfaceRecord* record = Find(id);
    if (!record || record->IsLocal) return false;
    Remove(id);
    return true;
}

bool EmbeddedTessaly::AnnounceChange(Long id) {
    if (!Reachable(id)) return false;
    RaiseLinked([this, id] { InterfaceChanged(id); });
    return true;
}

bool EmbeddedTessaly::WriteParameter(Long id, Long index, Long value) {
    if (!Reachable(id)) return false;
    Find(id)->Parameters[index] = {value, ++writes, ParameterWriter::OtherParty};
    TellParameter(id, index);
    return true;
}

bool EmbeddedTessaly::WriteText(Long id, Long index, const std::string& text) {
    if (!Reachable(id)) return false;
    Find(id)->Texts[index] = {text, ++writes, ParameterWriter::OtherParty};
    TellParameter(id, index);
    return true;
}

std::map<Long, InterfaceRecord> EmbeddedTessaly::Records() const {
    std::map<Long, InterfaceRecord> present;
    for (const auto& [id, record] : records)
        if (!record.Dropped) present.emplace(id, record);
    return present;
}

Long EmbeddedTessaly::AddRecord(InterfaceRecord record) {
    Long id = 1;
    while (records.contains(id)) ++id;
    records.emplace(id, std::move(record));
    TellRecord(id);
    Changed.Mark();
    return id;
}

// A record that the panel was told of keeps its id until the panel is told that it is gone: a new record under that
// id would be taken for the old one.
void EmbeddedTessaly::Remove(Long id) {
    if (openRecord == id) openRecord = 0;
    InterfaceRecord& record = records.at(id);
    record.Dropped = true;
    if (record.Announced)
        TellRecord(id);
    else
        records.erase(id);
    Changed.Mark();
}

InterfaceRecord* EmbeddedTessaly::Find(Long id) {
    const auto found = records.find(id);
    return found != records.end() && !found->second.Dropped ? &found->second : nullptr;
}

bool EmbeddedTessaly::Reachable(Long id) { return LinkCanStand() && linkUp && Find(id); }

// Tells the panel that a record appeared or is gone, whichever it does not know yet. Of other computers' records it
// hears while the link stands only.
void EmbeddedTessaly::TellRecord(Long id) {
    if (!started) return;
    delivery.Raise([this, id] {
        const auto found = records.find(id);
        if (found == records.end() || !(found->second.IsLocal || linkUp)) return;
        if (found->second.Dropped) {
            records.erase(found);
            InterfaceRemoved(id);
        } else if (!found->second.Announced) {
            found->second.Announced = true;
            InterfaceAppeared(id);
        }
    });
}

void EmbeddedTessaly::TellOfRecords() {
    for (const auto& [id, record] : records)
        if (record.Dropped || !record.Announced) TellRecord(id);
}

void EmbeddedTessaly::TellParameter(Long id, Long index) {
    RaiseLinked([this, id, index] { InterfaceParamChanged(id, index); });
    Changed.Mark();
}

}  // namespace orvelle
