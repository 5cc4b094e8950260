// The fuzz target: plays what the bytes make of it to the real controller and checks after every stimulus what must
// always hold. A breach is printed with the scenario that led to it, which the replay program runs as it stands.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "platform/RuntimeError.h"
#include "replay/Lines.h"
#include "tests/fuzz/Invariants.h"
#include "tests/fuzz/LineMaker.h"

namespace orvelle::fuzz {

namespace {

constexpr int Preparations = 12;
constexpr int Stimuli = 120;

class Run {
public:
    // False once the program has ended.
    bool Play(const std::string& line) {
        scenario += line + '\n';
        output.str("");
        replay::Scanner scanner(line);
        const replay::LineForm& form = replay::FormOf(scanner.Word());
        const replay::Act act = form.Read(stage, scanner);
        try {
            act();
        } catch (const RuntimeError&) {
            return false;
        } catch (const replay::ProgramEnded&) {
            CheckEnd();
            return false;
        }
        if (stage.Panel.IsLoaded())
            if (const std::optional<std::string> breach = invariants.Check(stage, output.str())) Fail(*breach);
        return true;
    }

    ~Run() { stage.Outside.Output.Close(); }

private:
    // The last thing that an ended panel did was to take its icon away, and to keep its place where it may.
    void CheckEnd() {
        const std::string icon = "shell32.Shell_NotifyIconA(2, ";
        const std::size_t at = output.str().rfind(icon);
        if (at == std::string::npos || output.str().find('\n', at) + 1 != output.str().size())
            Fail("a call followed the end of the program");
    }

    [[noreturn]] void Fail(const std::string& breach) const {
        std::cerr << "breach: " << breach << "\nscenario:\n" << scenario << "calls of the last line:\n" << output.str();
        std::abort();
    }

    std::ostringstream output;
    replay::Stage stage{output};
    Invariants invariants;
    std::string scenario;
};

void PlayAll(LineMaker lines) {
    Run run;
    for (int count = 0; count < Preparations && !lines.AtEnd(); ++count) run.Play(lines.Preparation());
    bool runs = run.Play("load");
    for (int count = 0; runs && count < Stimuli && !lines.AtEnd(); ++count) runs = run.Play(lines.Stimulus());
}

}  // namespace

}  // namespace orvelle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    orvelle::fuzz::PlayAll(orvelle::fuzz::LineMaker(bytes, count));
    return 0;
}
