// The panel's copy of the interface records, its own and those of other computers.
#include <algorithm>
#include <set>
#include <utility>

#include "adapters/ends/FrameworkEnd.h"

namespace orvelle::ends {

namespace {

template <typename Value>
Value At(const std::map<Long, Value>& parameters, Long index) {
    const auto found = parameters.find(index);
    return found != parameters.end() ? found->second : Value{};
}

// The indexes at which the two differ; what is not listed is 0 or "".
template <typename Value>
void AddDifferences(std::set<Long>& indexes, const std::map<Long, Value>& one, const std::map<Long, Value>& other) {
    for (const auto& [index, value] : one)
        if (At(other, index) != value) indexes.insert(index);
    for (const auto& [index, value] : other)
        if (At(one, index) != value) indexes.insert(index);
}

std::set<Long> Differences(const RecordParameters& one, const RecordParameters& other) {
    std::set<Long> indexes;
    AddDifferences(indexes, one.Numbers, other.Numbers);
    AddDifferences(indexes, one.Texts, other.Texts);
    return indexes;
}

void Enter(RecordParameters& parameters, const RecordParameters& written) {
    for (const auto& [index, number] : written.Numbers) parameters.Numbers[index] = number;
    for (const auto& [index, text] : written.Texts) parameters.Texts[index] = text;
}

}  // namespace

Long FrameworkEnd::CreateInterface(const std::string& type, const std::string& role) {
    // Until the panel was told of all that is gone it would take a new record for an old one.
    if (!line || !leaving.empty()) return 0;
    const Long id = line->NewRecordId();
    if (id == 0) return 0;
    Record& record = records[id];
    record = {{type, role, {}}, true};
    line->SayRecord(id, record.Content, {});
    TellOwnRecord(id);
    openRecord = id;
    return id;
}

void FrameworkEnd::DeleteInterface(Long id) {
    Record* record = Find(id);
    if (!record || !record->IsLocal) return;
    if (openRecord == id) openRecord = 0;
    if (record->Told) {
        record->Ended = true;
        TellOwnRecord(id);
    } else {
        records.erase(id);
        line->SayRecordEnded(id);
    }
}

bool FrameworkEnd::OpenInterface(Long id) {
    const Record* record = Find(id);
    if (!record || !line || !line->LetsOpenRecord() || !(record->IsLocal || isUp)) return false;
    openRecord = id;
    return true;
}

std::string FrameworkEnd::InterfaceType() {
    const Record* record = OpenRecord();
    return record ? record->Content.Type : "";
}

std::string FrameworkEnd::InterfaceRole() {
    const Record* record = OpenRecord();
    return record ? record->Content.Role : "";
}

bool FrameworkEnd::InterfaceIsLocal() {
    const Record* record = OpenRecord();
    return record && record->IsLocal;
}

Long FrameworkEnd::GetParam(Long index) {
    const Record* record = OpenRecord();
    return record ? At(record->Content.Parameters.Numbers, index) : 0;
}

void FrameworkEnd::SetParam(Long index, Long value) { WriteToOpenRecord({{{index, value}}, {}}); }

std::string FrameworkEnd::GetParamText(Long index) {
    const Record* record = OpenRecord();
    return record ? At(record->Content.Parameters.Texts, index) : "";
}

void FrameworkEnd::SetParamText(Long index, const std::string& text) { WriteToOpenRecord({{}, {{index, text}}}); }

void FrameworkEnd::WriteToOpenRecord(const RecordParameters& written) {
    Record* record = OpenRecord();
    if (!record || !line) return;
    if (!record->IsLocal) return line->SayWrite(openRecord, written);
    Enter(record->Content.Parameters, written);
    line->SayRecord(openRecord, record->Content, written);
}

FrameworkEnd::Record* FrameworkEnd::Find(Long id) {
    const auto found = records.find(id);
    return found != records.end() && !found->second.Ended ? &found->second : nullptr;
}

// The panel hears of its own record as of any other, from the loop, whether the link stands or not. The record ends for
// the others when the panel hears of its end, so that no new one has its id before.
void FrameworkEnd::TellOwnRecord(Long id) {
    delivery.Raise([this, id] {
        const auto found = records.find(id);
        if (found == records.end() || !found->second.IsLocal) return;
        if (found->second.Ended) {
            records.erase(found);
            line->SayRecordEnded(id);
            InterfaceRemoved(id);
        } else if (!found->second.Told) {
            found->second.Told = true;
            InterfaceAppeared(id);
        }
    });
}

void FrameworkEnd::HearRecord(Long id, const RecordContent& said) {
    Record* record = Find(id);
    if (!record) {
        records[id] = {said, false, true};
        return InterfaceAppeared(id);
    }
    if (record->IsLocal) return;
    const RecordContent before = std::exchange(record->Content, said);
    if (before.Type != said.Type || before.Role != said.Role) InterfaceChanged(id);
    for (const Long index : Differences(before.Parameters, said.Parameters)) InterfaceParamChanged(id, index);
}

void FrameworkEnd::HearRecordEnded(Long id) {
    const Record* record = Find(id);
    if (!record || record->IsLocal) return;
    RecallAnother(id);
    if (records.erase(id) == 0) return;
    if (openRecord == id) openRecord = 0;
    InterfaceRemoved(id);
}

void FrameworkEnd::HearWrite(Long id, const RecordParameters& written) {
    Record* record = Find(id);
    if (!record || !record->IsLocal) return;
    const RecordParameters before = record->Content.Parameters;
    Enter(record->Content.Parameters, written);
    const std::set<Long> changed = Differences(before, record->Content.Parameters);
    line->SayRecord(id, record->Content, {});
    for (const Long index : changed) InterfaceParamChanged(id, index);
}

void FrameworkEnd::HearRecordTaken(Long id) {
    const auto found = records.find(id);
    if (found == records.end() || !found->second.IsLocal) return;
    RecallAnother(id);
    if (records.erase(id) == 0) return;
    if (openRecord == id) openRecord = 0;
    InterfaceRemoved(id);
}

// Of the foreign records of one role the panel keeps the one that appeared last. Before that one goes, or its own gives
// way, it hears once more of another that is there: else it takes the role for free, and claims it.
void FrameworkEnd::RecallAnother(Long leaving) {
    const RecordContent& gone = records.at(leaving).Content;
    const auto other = std::ranges::find_if(records, [&](const auto& each) {
        const auto& [id, record] = each;
        return id != leaving && !record.IsLocal && record.Content.Type == gone.Type && record.Content.Role == gone.Role;
    });
    if (other != records.end()) InterfaceAppeared(other->first);
}

void FrameworkEnd::ForgetRecords() {
    for (const auto& [id, record] : std::exchange(records, {}))
        if (record.Told) leaving.push_back(id);
    openRecord = 0;
}

void FrameworkEnd::TellOfForgotten() {
    while (!leaving.empty()) {
        const Long id = leaving.front();
        leaving.erase(leaving.begin());
        InterfaceRemoved(id);
    }
}

}  // namespace orvelle::ends
