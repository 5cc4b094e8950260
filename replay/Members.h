// The members of the peers whose answers a scenario can give.
#pragma once

#include <string>
#include <string_view>

namespace orvelle::replay {

struct Member {
    const char* Name;  // "Tessaly.VoiceSoftware"
    std::string_view Arguments;
    std::string_view Results;  // the result, then what comes back by reference; kinds as in Signature.h
};

// LineError where there is no such member, or it answers nothing.
const Member& AnsweringMember(const std::string& name);

}  // namespace orvelle::replay
