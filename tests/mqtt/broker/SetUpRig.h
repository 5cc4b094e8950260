// A set-up for tests: a broker, the loop, panels' lines with what they told written down, and a simulator's program
// that says what a test has it say.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/BrokerFrameworkLine.h"
#include "adapters/mqtt/BrokerSimulatorLine.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle::mqtt {

// Another program of the set-up, played by hand.
class PlayedMember {
public:
    PlayedMember(EventLoop& loop, const SetUpSetting& setUp, Program kind);

    Member AtBroker;
    PresenceSetting Presence;
    std::vector<std::string> Heard;  // topic and payload, but for presence
};

// A panel's lines, open to the broker on this computer, or to other servers.
class LinesOfAPanel {
public:
    LinesOfAPanel(EventLoop& loop, const SetUpSetting& setUp, const std::string& simulatorServer = "AUTOMATIC",
                  const std::string& frameworkServer = "localhost");

    Brokers Places;
    BrokerSimulatorLine Simulator;
    BrokerFrameworkLine Framework;
    std::vector<std::string> Told;
    std::vector<std::string> Sentences;  // for the user
};

class SetUpRig : public testing::Test {
protected:
    // Serves the loop until it is so. False where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo);
    void ServeFor(Long milliseconds);

    BrokerProcess broker;
    linux::PollEventLoop loop;
};

}  // namespace orvelle::mqtt
