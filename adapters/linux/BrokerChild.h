// The broker as a child of this program: mosquitto with a configuration of the set-up's. It ends with this program,
// however that ends, and is started again where it ends by itself. Calls are made and events come on the loop's thread.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "adapters/linux/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class BrokerChild {
public:
    BrokerChild(EventLoop& eventLoop, std::filesystem::path configurationFile)
        : loop(eventLoop), configuration(std::move(configurationFile)) {}
    BrokerChild(const BrokerChild&) = delete;
    BrokerChild& operator=(const BrokerChild&) = delete;
    ~BrokerChild() { End(); }

    void Start();
    void End();            // and waits for its end
    void ReadKeysAgain();  // they have changed
    void StartAgain();     // everybody comes anew

    // What keeps it from serving, with what it said of it; one sentence, once until it is another.
    Event<const std::string&> Told;

private:
    void Ended();
    void Tell(const std::string& sentence);
    std::string LastWords();

    EventLoop& loop;
    const std::filesystem::path configuration;
    pid_t process = -1;
    FileDescriptor end;     // readable when it has ended
    FileDescriptor errors;  // what it says
    std::chrono::steady_clock::time_point startedAt;
    Long pause = 0;  // before it is started again, milliseconds
    std::string told;
    Ticket ended, again;
};

}  // namespace orvelle::linux
