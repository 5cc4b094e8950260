// Runs one scenario against the real controller and prints its transcript. The replay program makes one for its run.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace orvelle::replay {

struct Stage;

class Scenario {
public:
    enum ExitStatus : int { RanToItsEnd = 0, WrongLine = 2 };

    explicit Scenario(std::ostream& output);
    ~Scenario();

    // The exit status of the program. What is wrong with a line goes to `errors`, behind its number; nothing after that
    // line is run.
    ExitStatus Run(std::istream& lines, std::ostream& errors);

private:
    void RunLine(const std::string& text);
    void Perform(const std::function<void()>& act);

    const std::unique_ptr<Stage> stage;
};

}  // namespace orvelle::replay
