#include "replay/Answers.h"

namespace orvelle::replay {

void Answers::Give(const std::string& call, const std::deque<Values>& answers) { given[call] = {answers, Now()}; }

std::optional<Values> Answers::Next(const std::string& member, const std::string& arguments, Stamp since) {
    Given* answer = Find(member + "(" + arguments + ")", since);
    if (answer == nullptr) answer = Find(member, since);
    if (answer == nullptr) return std::nullopt;
    const Values values = answer->Queue.front();
    if (answer->Queue.size() > 1) answer->Queue.pop_front();
    return values;
}

Answers::Given* Answers::Find(const std::string& call, Stamp since) {
    const auto found = given.find(call);
    return found == given.end() || found->second.When <= since ? nullptr : &found->second;
}

}  // namespace orvelle::replay
