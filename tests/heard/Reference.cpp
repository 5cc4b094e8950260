#include "tests/heard/Reference.h"

#include <stdexcept>

namespace orvelle::heard {

namespace {

const std::string Sink = "reference";

}  // namespace

// The server lets a loopback's delay grow wherever it was late, unless it may not.
Reference::Reference(SoundOfComputers& ofComputers, const std::string& microphone) : sounds(ofComputers) {
    sounds.Add(Sink);
    module = pulse::Pactl({"load-module", "module-loopback", "source=" + microphone, "sink=" + Sink,
                           "latency_msec=20", "max_latency_msec=30", "source_dont_move=true", "sink_dont_move=true"});
    if (module.empty()) throw std::runtime_error("the sound server has no loopback");
}

Reference::~Reference() {
    pulse::Pactl({"unload-module", module});
    sounds.Pull(Sink);
}

}  // namespace orvelle::heard
