// A real orvelle-sim without a window, with its broker and a directory, and a second computer of its set-up, which
// hears at the broker what all computers hear. All on loopback, in a folder and on ports of the test's own; all of it
// ends with the object.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/SetUpFile.h"
#include "platform/SessionSetting.h"
#include "tests/linux/ChildProcess.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::simulators {

class FlownSetUp {
public:
    // `program` is orvelle-sim's file; `display` "" for none.
    FlownSetUp(const std::string& program, const std::string& directory, const std::string& display);
    ~FlownSetUp();

    // To which FlightGear's lines go.
    std::uint16_t LinesPort() const { return linesPort; }
    // Serves the loop until it is so. False where that takes half a minute.
    bool Until(const std::function<bool()>& isSo);

    linux::PollEventLoop Loop;
    SessionSetting Session;         // as it was heard last
    int Sessions = 0;               // messages of it so far
    std::vector<std::string> Keys;  // that are held at the simulator's computer
    int Inputs = 0;                 // messages of them so far
    Event<> Heard;                  // either

private:
    void Join(const std::string& program);
    void Hear(const std::string& topic, const std::string& payload);

    const OwnFolder folder;
    const int port;
    const std::uint16_t linesPort;
    std::unique_ptr<linux::ChildProcess> simulator;
    mqtt::BrokerConnection second{Loop};
};

}  // namespace orvelle::simulators
