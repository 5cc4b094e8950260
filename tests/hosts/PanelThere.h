// A panel that a test has started on a host, as it tells of itself: what it holds down, which links it has, and which
// records it knows.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Types.h"
#include "tests/hosts/ProgramThere.h"

namespace orvelle::hosts {

class PanelThere : public ProgramThere {
public:
    PanelThere(const Host& host, const std::string& setUpFile) : ProgramThere(host, {PANEL_AT_HOST, setUpFile}) {}

    bool Holds(const std::string& key) const { return held.contains(key); }
    bool HoldsNothing() const { return held.empty(); }
    bool HasLinks() const { return links.size() == 2; }
    bool HasNoLink() const { return links.empty(); }
    const std::string& Session() const { return session; }
    // The ids of all records of that role that it knows.
    std::set<Long> Holders(const std::string& role) const;
    bool HasOwn(const std::string& role) const;
    // A parameter of another panel's record.
    Long Value(Long id, Long index) const;

private:
    struct Record {
        std::string Role;
        bool IsOwn = false;
        std::map<Long, Long> Values;
    };

    void Heard(const std::string& text) override;

    std::set<std::string> held;
    std::set<std::string> links;
    std::string session;
    std::map<Long, Record> records;
};

}  // namespace orvelle::hosts
