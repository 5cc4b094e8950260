#include "tests/heard/Reference.h"

#include <stdexcept>

namespace orvelle::heard {

namespace {

const std::string Sink = "reference";

}  // namespace

Reference::Reference(SoundOfComputers& ofComputers, const std::string& microphone)
    : sounds(ofComputers), source(microphone) {
    sounds.Add(Sink);
    Load();
}

Reference::~Reference() {
    Unload();
    sounds.Pull(Sink);
}

void Reference::Renew() {
    Unload();
    Load();
}

void Reference::Load() {
    module = pulse::Pactl({"load-module", "module-loopback", "source=" + source, "sink=" + Sink, "latency_msec=20",
                           "max_latency_msec=30", "source_dont_move=true", "sink_dont_move=true"});
    if (module.empty()) throw std::runtime_error("the sound server has no loopback");
}

void Reference::Unload() { pulse::Pactl({"unload-module", module}); }

}  // namespace orvelle::heard
