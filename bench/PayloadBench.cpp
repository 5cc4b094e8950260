// What it costs to read and to write the message of a key press, which stands between a key there and a key here, and
// the record of a voice duty, of which many come at once when a broker is back.
#include <benchmark/benchmark.h>

#include "adapters/mqtt/Payloads.h"

namespace orvelle::mqtt {

namespace {

InputMessage HeldTalkKey() { return {43, {true, {"Ctrl", "F8"}, {"Stick.Button 3"}, "F8"}}; }

RecordContent VoiceRecord() {
    RecordContent record{"VOICE", "VVL", {}};
    for (Long index = 0; index < 20; ++index) {
        record.Parameters.Numbers[index] = index + 1;
        record.Parameters.Texts[index] = "voice.example/tower";
    }
    return record;
}

void WriteInputMessage(benchmark::State& state) {
    const InputMessage message = HeldTalkKey();
    for (auto iteration : state) benchmark::DoNotOptimize(WriteInput(message));
}
BENCHMARK(WriteInputMessage);

void ReadInputMessage(benchmark::State& state) {
    const std::string payload = WriteInput(HeldTalkKey());
    for (auto iteration : state) benchmark::DoNotOptimize(ReadInput(payload));
    if (ReadInput(payload) != HeldTalkKey()) state.SkipWithError("another message was read");
}
BENCHMARK(ReadInputMessage);

void WriteVoiceRecord(benchmark::State& state) {
    const RecordContent record = VoiceRecord();
    for (auto iteration : state) benchmark::DoNotOptimize(WriteRecord(record));
}
BENCHMARK(WriteVoiceRecord);

void ReadVoiceRecord(benchmark::State& state) {
    const std::string payload = WriteRecord(VoiceRecord());
    for (auto iteration : state) benchmark::DoNotOptimize(ReadRecord(payload));
    if (!ReadRecord(payload)) state.SkipWithError("the record is refused");
}
BENCHMARK(ReadVoiceRecord);

// The dearest thing that a stranger can send: as many values as a payload holds.
void RefuseFullPayload(benchmark::State& state) {
    std::string payload = "{\"x\":[";
    while (payload.size() < 65530) payload += "{},";
    payload += "0]}";
    for (auto iteration : state) benchmark::DoNotOptimize(ReadInput(payload));
    if (ReadInput(payload)) state.SkipWithError("the payload is taken");
}
BENCHMARK(RefuseFullPayload);

}  // namespace

}  // namespace orvelle::mqtt
