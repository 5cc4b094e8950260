#include "replay/Scenario.h"

#include <istream>
#include <ostream>

#include "platform/RuntimeError.h"
#include "replay/Lines.h"

namespace orvelle::replay {

Scenario::Scenario(std::ostream& output) : stage(std::make_unique<Stage>(output)) {}

// Nothing that the controller does while it is taken apart belongs to the run.
Scenario::~Scenario() { stage->Outside.Output.Close(); }

Scenario::ExitStatus Scenario::Run(std::istream& lines, std::ostream& errors) {
    try {
        for (std::string line; std::getline(lines, line);) {
            ++stage->Line;
            const std::string text = WithoutComment(line);
            if (!text.empty()) RunLine(text);
        }
    } catch (const LineError& error) {
        errors << (error.Line == 0 ? stage->Line : error.Line) << ": " << error.what() << '\n';
        return WrongLine;
    }
    return RanToItsEnd;
}

void Scenario::RunLine(const std::string& text) {
    Transcript& output = stage->Outside.Output;
    Scanner scanner(text);
    const LineForm& form = FormOf(scanner.Word());
    const Act act = form.Read(*stage, scanner);
    if (form.Kind == LineKind::Look) {
        act();
        return;
    }
    output.Begin(text);
    try {
        if (!output.Ended()) Perform(act);
    } catch (const LineError&) {
        output.Drop();
        throw;
    }
    output.Flush();
}

void Scenario::Perform(const std::function<void()>& act) {
    try {
        act();
    } catch (const RuntimeError& error) {
        stage->Outside.Output.Note("run-time error " + std::to_string(error.Number));
        stage->Outside.Output.End();
    } catch (const ProgramEnded&) {
        stage->Outside.Output.End();
    }
}

const LineForm& FormOf(const std::string& word) {
    for (const std::span<const LineForm> forms : {Preparations(), UserActs(), Stimuli(), Looks()})
        for (const LineForm& form : forms)
            if (word == form.Word) return form;
    throw LineError("no line begins with " + word);
}

}  // namespace orvelle::replay
