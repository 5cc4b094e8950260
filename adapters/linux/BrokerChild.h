// mosquitto as a child of this program: started with a configuration, watched, started again when it ends by itself,
// ended with this process whatever ends it. What it says on its standard error tells when it serves, who is connected,
// and why it could not start. Called on the loop's thread; events come from the loop.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class BrokerChild {
public:
    BrokerChild(EventLoop& eventLoop, std::filesystem::path configurationFile)
        : loop(eventLoop), configuration(std::move(configurationFile)) {}
    BrokerChild(const BrokerChild&) = delete;
    BrokerChild& operator=(const BrokerChild&) = delete;
    ~BrokerChild() { Stop(); }

    // "" for success, else a sentence; whether it serves is told later.
    std::string Start();
    // Ends it and waits for its end.
    void Stop();
    // Ends all connections, and what is retained.
    void Restart();
    // Reads its keys again, once it serves. What is asked while it does so is done after it.
    void Reload();

    bool Serves() const { return serves; }
    // Under which names a user has come since the broker runs. `TooMany` if there may be more, as for
    // somebody who changes them again and again.
    struct ClientNames {
        std::set<std::string> Names;
        bool TooMany = false;
    };
    ClientNames ClientsOf(const std::string& user) const;

    Event<> Served;                    // connections are taken from now on
    Event<> Reloaded;                  // the keys are those of the file
    Event<const std::string&> Told;    // one sentence for the user: it ended and is started again
    Event<const std::string&> GaveUp;  // one sentence: it can't be had

private:
    bool Read();
    void TakeLine(const std::string& line);
    void TakeClient(const std::string& line);
    void Ended();
    std::string Reason() const;

    EventLoop& loop;
    const std::filesystem::path configuration;
    pid_t process = -1;
    FileDescriptor end;     // of the process
    FileDescriptor errors;  // its standard error
    bool serves = false;
    bool isReloading = false;
    bool reloads = false;  // when it serves, or has reloaded
    std::string part;      // of a line
    std::string problem;   // the last line that told of an error
    int ends = 0;          // by itself, in a row
    std::map<std::string, ClientNames> clients;
    bool isSomebodyUnknown = false;  // whose name was too long to be told
    Ticket ended, readable, again, wellAgain, reloaded;
};

}  // namespace orvelle::linux
