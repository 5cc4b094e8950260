#include "tests/heard/SoundOfComputers.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvelle::heard {

namespace {

std::unique_ptr<pulse::SoundServerProcesses> NewServer(SoundOfComputers::Server kind) {
    if (kind == SoundOfComputers::Server::PipeWire) return std::make_unique<pulse::PipeWireServer>();
    return std::make_unique<pulse::PulseAudioServer>();
}

}  // namespace

SoundOfComputers::SoundOfComputers(int computers, Server kind) : count(computers), server(NewServer(kind)) { Start(); }

void SoundOfComputers::Start() {
    server->Start();
    for (int computer = 0; computer < count; ++computer)
        for (const std::string& sink : {Mouth(computer), Output(computer, 0), Output(computer, 1)}) Add(sink);
}

void SoundOfComputers::Add(const std::string& sink) {
    EXPECT_NE(pulse::Pactl({"load-module", "module-null-sink", "sink_name=" + sink, "rate=48000", "channels=1",
                            "sink_properties=device.description=" + sink}),
              "");
}

void SoundOfComputers::Pull(const std::string& sink) {
    std::istringstream modules(pulse::Pactl({"list", "short", "modules"}));
    for (std::string line; std::getline(modules, line);)
        if (line.find("sink_name=" + sink + " ") != std::string::npos)
            pulse::Pactl({"unload-module", line.substr(0, line.find('\t'))});
}

}  // namespace orvelle::heard
