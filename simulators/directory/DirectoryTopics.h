// Directories that computers of the set-up hold as retained messages of the broker, each the file as it is, at
// orvelle/1/<identity>/directory/<NAME>; an empty one takes it away. So a club's own tool can write one, and a bridge
// of the broker can bring a club's. By name, of one name by holder. Whoever hears the broker hands on what it heard,
// from the loop.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/EventLoop.h"
#include "simulators/directory/Directories.h"
#include "simulators/directory/LastGood.h"

namespace orvelle::directory {

class DirectoryTopics : public DirectorySource {
public:
    explicit DirectoryTopics(EventLoop& eventLoop) : loop(eventLoop) {}

    // `holder` "c03"; an empty text takes it away.
    void Hear(const std::string& holder, const std::string& name, const std::string& text);
    // The broker is another one, or has nothing any more.
    void Forget();

    const std::vector<Found>& Directories() const override { return found; }

private:
    void Gather();

    EventLoop& loop;
    std::map<std::pair<std::string, std::string>, LastGood> heard;  // by name, then holder
    std::vector<Found> found;
};

}  // namespace orvelle::directory
