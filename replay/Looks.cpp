#include "replay/Lines.h"

namespace orvelle::replay {

namespace {

Act ReadShow(Stage& stage, Scanner& line) {
    std::vector<std::string> shown;
    do
        for (std::string& text : Shown(stage, line.AnyReference())) shown.push_back(std::move(text));
    while (!line.AtEnd());
    return [&stage, shown] {
        for (const std::string& text : shown) stage.Outside.Output.Look(text);
    };
}

std::vector<std::string> Patterns(Scanner& line) {
    std::vector<std::string> patterns;
    while (!line.AtEnd()) patterns.push_back(line.Word());
    return patterns;
}

Act ReadOnly(Stage& stage, Scanner& line) {
    return [&stage, patterns = Patterns(line)] { stage.Outside.Output.Only(patterns); };
}

Act ReadHide(Stage& stage, Scanner& line) {
    return [&stage, patterns = Patterns(line)] { stage.Outside.Output.Hide(patterns); };
}

constexpr LineForm Forms[] = {
    {"show", LineKind::Look, ReadShow},
    {"only", LineKind::Look, ReadOnly},
    {"hide", LineKind::Look, ReadHide},
};

}  // namespace

std::span<const LineForm> Looks() { return Forms; }

}  // namespace orvelle::replay
