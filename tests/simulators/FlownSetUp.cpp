#include "tests/simulators/FlownSetUp.h"

#include <chrono>
#include <csignal>
#include <fstream>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/Topics.h"
#include "apps/FreePort.h"
#include "tests/linux/ServeUntil.h"

namespace orvelle::simulators {

FlownSetUp::FlownSetUp(const std::string& program, const std::string& directory, const std::string& display)
    : port(FreePort()), linesPort(FreePort()) {
    const std::filesystem::path data = folder.Path / "data";
    std::filesystem::create_directories(data / "directory.d");
    std::ofstream(data / "directory.d" / "club.json") << directory;
    simulator = std::make_unique<linux::ChildProcess>(std::vector<std::string>{
        "/usr/bin/env", "-u", "WAYLAND_DISPLAY", "DISPLAY=" + display, "HOME=" + folder.Path.string(),
        "XDG_SESSION_TYPE=x11", program, "--no-window", "--data", data.string(), "--port", std::to_string(port),
        "--flightgear-port", std::to_string(linesPort)});
    linux::Await({simulator.get()}, [this] { return IsListenedTo(port); });
    Join(program);
    EXPECT_TRUE(Until([this] { return second.IsUp(); }));
}

FlownSetUp::~FlownSetUp() {
    second.Close();
    simulator->Kill(SIGTERM);
    simulator->Wait();
}

bool FlownSetUp::Until(const std::function<bool()>& isSo) { return linux::ServeUntil(Loop, isSo); }

void FlownSetUp::Join(const std::string& program) {
    linux::ChildProcess adds({program, "--add", "--data", (folder.Path / "data").string()});
    const std::string code = adds.ReadLine();
    const auto read = mqtt::ReadJoinCode(code);
    EXPECT_TRUE(read) << code << adds.Errors();
    if (!read) return;
    second.Heard = [this](const std::string& topic, const std::string& payload) { Hear(topic, payload); };
    const std::string identity = mqtt::WriteIdentity(read->Number);
    second.Open({.Access = {"127.0.0.1", port, identity, mqtt::WriteKey(read->Key)},
                 .ClientId = identity + ".panel",
                 .WillTopic = "",
                 .Subscriptions = {{"orvelle/1/c01/sim/session", 1}, {"orvelle/1/c01/sim/input", 0}}});
}

void FlownSetUp::Hear(const std::string& topic, const std::string& payload) {
    if (topic.ends_with("/session")) {
        Session = mqtt::ReadSession(payload).value_or(SessionSetting());
        ++Sessions;
    } else if (const auto input = mqtt::ReadInput(payload)) {
        Keys = input->Held.Keys;
        ++Inputs;
    }
    Heard();
}

}  // namespace orvelle::simulators
