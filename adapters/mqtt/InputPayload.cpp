// What is held on the simulator's computer.
#include <algorithm>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Payloads.h"

namespace orvelle::mqtt {

namespace {

bool Has(const std::vector<std::string>& keys, const std::string& key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

std::optional<InputMessage> ReadInput(std::string_view payload) {
    JsonReading reading(payload);
    const Members members = reading.Object();
    InputMessage message;
    message.Number = members.Number("number", 1, bounds::GreatestNumber);
    message.Held.Active = members.Flag("active");
    message.Held.Keys = members.HeldNames("keys");
    message.Held.Buttons = members.HeldNames("buttons");
    if (members.Has("repeat")) message.Held.Repeat = members.Text("repeat");
    // Only what is held repeats.
    if (!message.Held.Repeat.empty() && !Has(message.Held.Keys, message.Held.Repeat)) members.Refuse();
    return reading.Taken(message);
}

std::string WriteInput(const InputMessage& message) {
    JsonWriting writing;
    writing.Number("number", message.Number);
    writing.Flag("active", message.Held.Active);
    const std::vector<std::string> keys = writing.HeldNames("keys", message.Held.Keys);
    writing.HeldNames("buttons", message.Held.Buttons);
    const std::string repeat = WrittenText(message.Held.Repeat);
    if (Has(keys, repeat)) writing.Text("repeat", repeat);
    return writing.Whole();
}

}  // namespace orvelle::mqtt
