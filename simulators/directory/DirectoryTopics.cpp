#include "simulators/directory/DirectoryTopics.h"

namespace orvelle::directory {

void DirectoryTopics::Hear(const std::string& holder, const std::string& name, const std::string& text) {
    const std::pair key(name, holder);
    if (text.empty()) {
        heard.erase(key);
        return Gather();
    }
    const auto [place, isNew] = heard.try_emplace(key, loop, "topic " + name + " of " + holder);
    if (isNew) place->second.Taken = [this](bool) { Gather(); };
    if (place->second.Take(text)) Gather();
}

void DirectoryTopics::Forget() {
    heard.clear();
    Gather();
}

void DirectoryTopics::Gather() {
    found.clear();
    for (const auto& [key, kept] : heard) found.push_back(kept.Now());
    Changed();
}

}  // namespace orvelle::directory
