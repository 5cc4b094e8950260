// An interface record, whole.
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Payloads.h"

namespace orvelle::mqtt {

namespace {

// In a record, what is 0 or "" is the same as what is not listed.
RecordParameters Listed(RecordParameters parameters) {
    std::erase_if(parameters.Numbers, [](const auto& entry) { return entry.second == 0; });
    std::erase_if(parameters.Texts, [](const auto& entry) { return entry.second.empty(); });
    return parameters;
}

}  // namespace

std::optional<RecordContent> ReadRecord(std::string_view payload) {
    JsonReading reading(payload);
    const Members members = reading.Object();
    RecordContent record;
    record.Type = members.Text("type");
    record.Role = members.Text("role");
    record.Parameters = Listed({members.IndexedNumbers("numbers"), members.IndexedTexts("texts")});
    return reading.Taken(record);
}

std::string WriteRecord(const RecordContent& record) {
    const RecordParameters listed = Listed(record.Parameters);
    JsonWriting writing;
    writing.Text("type", record.Type);
    writing.Text("role", record.Role);
    writing.Indexed("numbers", listed.Numbers);
    writing.Indexed("texts", listed.Texts);
    return writing.Whole();
}

}  // namespace orvelle::mqtt
