// Runs one scenario against the real controller and prints its transcript. The replay program makes one for its run.
#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "replay/Stage.h"

namespace orvelle::replay {

class Scenario {
public:
    enum ExitStatus : int { RanToItsEnd = 0, WrongLine = 2 };

    explicit Scenario(std::ostream& output) : stage(output) {}
    ~Scenario();

    // The exit status of the program. What is wrong with a line goes to `errors`, behind its number; nothing after that
    // line is run.
    ExitStatus Run(std::istream& lines, std::ostream& errors);

private:
    void RunLine(const std::string& text);
    void Perform(const Act& act);

    Stage stage;
};

}  // namespace orvelle::replay
