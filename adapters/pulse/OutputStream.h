// An output of the voice: asks for its next ten milliseconds whenever the server has room for them. What the server
// wants for moments that are over, as either side stood still, is left empty. Where nothing but silence was written for
// a while it rests: it is not asked any more, and neither side wakes up for it, until it is roused. Its device stays
// awake meanwhile, so that what comes then is heard as soon as ever.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adapters/pulse/VoiceStream.h"
#include "adapters/speech/Block.h"

namespace orvelle::pulse {

class OutputStream : public VoiceStream {
public:
    OutputStream(std::string name, std::function<void()> changed, std::function<void(speech::Block&)> wanted);

    // There is something to hear: it asks again, in the loop's next turns.
    void Rouse();

protected:
    int Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) override;
    std::size_t BytesAtOnce(const pa_buffer_attr& buffer) const override { return buffer.tlength; }
    void Carry(std::size_t bytes) override;
    void Forget() override;
    void ShowLife() override;

private:
    void Ask();
    void WriteSilence(std::size_t mostSamples);

    const std::function<void(speech::Block&)> wanted;
    std::vector<float> next;
    speech::Block block{};
    std::size_t used = block.size();
    Long blocksSilent = 0;  // written since the last one that is heard
    bool isResting = false;
};

}  // namespace orvelle::pulse
