// The voice's microphone: what the server records, in blocks of ten milliseconds. What waited longer than a moment, as
// either side stood still, is left out.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adapters/pulse/VoiceStream.h"
#include "adapters/speech/Block.h"

namespace orvelle::pulse {

class MicrophoneStream : public VoiceStream {
public:
    MicrophoneStream(std::function<void()> changed, std::function<void(const speech::Block&)> recorded);

protected:
    int Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) override;
    std::size_t BytesAtOnce(const pa_buffer_attr& buffer) const override { return buffer.fragsize; }
    void Carry(std::size_t bytes) override;
    void Forget() override { filled = 0; }

private:
    void Read();

    const std::function<void(const speech::Block&)> recorded;
    std::vector<float> came;
    speech::Block block{};
    std::size_t filled = 0;  // of the block
};

}  // namespace orvelle::pulse
