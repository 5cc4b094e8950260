// A scenario line that is not of the known forms, or that speaks of something that is not there. It ends the run: the
// runner adds the line's number where the thrower did not know it.
#pragma once

#include <stdexcept>
#include <string>

namespace orvelle::replay {

class LineError : public std::runtime_error {
public:
    explicit LineError(const std::string& whatIsWrong, int lineNumber = 0)
        : std::runtime_error(whatIsWrong), Line(lineNumber) {}

    const int Line;  // 0: the line that is being run
};

}  // namespace orvelle::replay
