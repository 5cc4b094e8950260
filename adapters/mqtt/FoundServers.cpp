#include "adapters/mqtt/FoundServers.h"

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {

namespace {

constexpr Long LookMilliseconds = 2000;

}  // namespace

void FoundServers::Begin() {
    isNew = true;
    settling = loop.After(LookMilliseconds, [this] { Settle(); });
}

void FoundServers::Settle() {
    settling.End();
    isNew = false;
    changes.Mark();
}

void FoundServers::End() {
    found.clear();
    Settle();
}

void FoundServers::Add(const FoundServer& server) {
    if (found.size() < bounds::FoundServers && found.insert(server).second) changes.Mark();
}

void FoundServers::Remove(const FoundServer& server) {
    if (found.erase(server) > 0) changes.Mark();
}

std::set<std::string> FoundServers::Hosts() const {
    std::set<std::string> hosts;
    for (const FoundServer& each : found) hosts.insert(each.Place.Host);
    return hosts;
}

std::vector<HostAndPort> FoundServers::Of(const std::string& setUp) const {
    std::vector<HostAndPort> places;
    for (const FoundServer& each : found)
        if (each.SetUp == setUp) places.push_back(each.Place);
    return places;
}

}  // namespace orvelle::mqtt
