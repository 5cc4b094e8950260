// What one computer asks of another: a sound to be played, a write to a record.
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

std::optional<PlayRequest> ReadPlay(std::string_view payload) {
    JsonReading reading(payload);
    const Members members = reading.Object();
    PlayRequest request;
    request.To = members.Identity("to");
    request.Sound = members.Text("sound");
    return reading.Taken(request);
}

std::string WritePlay(const PlayRequest& request) {
    JsonWriting writing;
    writing.Text("to", WriteIdentity(request.To));
    writing.Text("sound", request.Sound);
    return writing.Whole();
}

std::optional<WriteRequest> ReadWrite(std::string_view payload) {
    JsonReading reading(payload);
    const Members members = reading.Object();
    WriteRequest request;
    request.To = members.Identity("to");
    request.Record = members.Number("record", 1, LastRecord);
    request.Written = {members.IndexedNumbers("numbers"), members.IndexedTexts("texts")};
    return reading.Taken(request);
}

std::string WriteWrite(const WriteRequest& request) {
    JsonWriting writing;
    writing.Text("to", WriteIdentity(request.To));
    writing.Number("record", request.Record);
    writing.Indexed("numbers", request.Written.Numbers);
    writing.Indexed("texts", request.Written.Texts);
    return writing.Whole();
}

}  // namespace orvelle::mqtt
