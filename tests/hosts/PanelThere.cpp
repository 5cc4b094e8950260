#include "tests/hosts/PanelThere.h"

#include <sstream>

namespace orvelle::hosts {

std::set<Long> PanelThere::Holders(const std::string& role) const {
    std::set<Long> ids;
    for (const auto& [id, record] : records)
        if (record.Role == role) ids.insert(id);
    return ids;
}

bool PanelThere::HasOwn(const std::string& role) const {
    for (const auto& [id, record] : records)
        if (record.Role == role && record.IsOwn) return true;
    return false;
}

Long PanelThere::Value(Long id, Long index) const {
    const auto found = records.find(id);
    if (found == records.end()) return 0;
    const auto value = found->second.Values.find(index);
    return value != found->second.Values.end() ? value->second : 0;
}

void PanelThere::Heard(const std::string& text) {
    std::istringstream line(text);
    std::string event, name;
    line >> event;
    if (event == "down" || event == "up") {
        line >> name;
        event == "down" ? (void)held.insert(name) : (void)held.erase(name);
    } else if (event == "simulator" || event == "framework") {
        line >> name;
        name == "up" ? (void)links.insert(event) : (void)links.erase(event);
    } else if (event == "session") {
        session = text.substr(event.size() + 1);
    } else {
        Long id = 0, index = 0;
        line >> id;
        if (event == "removed") {
            records.erase(id);
        } else if (event == "value") {
            line >> index;
            line >> records[id].Values[index];
        } else if (event == "own" || event == "foreign") {
            records[id].IsOwn = event == "own";
            line >> records[id].Role;
        }
    }
}

}  // namespace orvelle::hosts
