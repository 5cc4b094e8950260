// Runs the lines of a scenario in a test.
#pragma once

#include <sstream>
#include <string>

#include "replay/Scenario.h"

namespace orvelle::replay {

struct Outcome {
    int Status;
    std::string Transcript;
    std::string Errors;
};

inline Outcome Replay(const std::string& lines) {
    std::istringstream in(lines);
    std::ostringstream out;
    std::ostringstream errors;
    int status = 0;
    {
        Scenario scenario(out);
        status = scenario.Run(in, errors);
    }
    return {status, out.str(), errors.str()};
}

// What the lines print once the panel is loaded, with nothing printed of the load itself.
inline std::string AfterLoad(const std::string& lines) {
    const std::string load = "only none\nload\nonly\n";
    const std::string printed = "> load\n! FrmOrvelle.Show\n";
    const Outcome outcome = Replay(load + lines);
    const std::string transcript =
        outcome.Transcript.starts_with(printed) ? outcome.Transcript.substr(printed.size()) : outcome.Transcript;
    return transcript + outcome.Errors;
}

}  // namespace orvelle::replay
