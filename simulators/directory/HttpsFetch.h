// One file fetched by HTTPS, by the program curl as a child: HTTPS alone also where it is led on, at most 5 times,
// certificates checked, within a minute and LongestDirectory bytes, which count when unpacked, too. Of what the user
// has set for curl, proxies in the environment count, and its own file of settings doesn't. Called by whoever keeps
// addresses; the end of this object ends the child.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "simulators/directory/FetchTroubles.h"

namespace orvelle::directory {

struct FetchRequest {
    std::string Address;              // "https://..."
    std::filesystem::path File;       // where it comes to; also after a trouble something may lie there
    std::filesystem::path Tag;        // where the server's ETag comes to
    std::filesystem::path FormerTag;  // an answer "not changed" (304) is asked for by this one; "" for none
};

class HttpsFetch {
public:
    explicit HttpsFetch(EventLoop& eventLoop) : loop(eventLoop) {}
    HttpsFetch(const HttpsFetch&) = delete;
    HttpsFetch& operator=(const HttpsFetch&) = delete;
    ~HttpsFetch() { Stop(); }

    bool IsRunning() const { return process > 0; }
    // While none is running; how it ended is told from the loop.
    void Start(const FetchRequest& request);
    void Stop();

    Event<const FetchEnd&> Ended;  // the handler may start the next one, not end this object

private:
    void Tell();

    EventLoop& loop;
    pid_t process = -1;
    FileDescriptor end;     // of the process
    FileDescriptor output;  // what it tells in the end
    Ticket ended;
};

}  // namespace orvelle::directory
