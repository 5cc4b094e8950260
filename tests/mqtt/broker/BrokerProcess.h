// A mosquitto of the test's own on loopback, as a set-up has it: keys by computer, the access list, nothing kept over a
// restart. Its files lie in a folder that goes with it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "adapters/mqtt/SetUpFile.h"
#include "tests/linux/ChildProcess.h"

namespace orvelle::mqtt {

class BrokerProcess {
public:
    // Knows the computers c01 to c10. Returns when it can be connected to.
    BrokerProcess();
    ~BrokerProcess();

    int Port() const { return port; }
    // What such a computer's setup.json says.
    SetUpSetting SetUpOf(int identity) const;
    void Kill(int signal);  // and waits for its end
    void Start();           // again, with nothing known
    void Signal(int signal);

    // The options by which mosquitto's own clients come here as that computer.
    std::vector<std::string> ClientOptions(int identity) const;

private:
    std::filesystem::path folder;
    int port;
    std::unique_ptr<linux::ChildProcess> process;
};

}  // namespace orvelle::mqtt
