// The forms of scenario lines, by their first word. Reading a line checks its form and its names and throws LineError
// where they are wrong; the act that it gives may still throw it for what only the run can tell.
#pragma once

#include <initializer_list>
#include <span>
#include <string>

#include "replay/Scanner.h"
#include "replay/Stage.h"

namespace orvelle::replay {

enum class LineKind { Preparation, Stimulus, Look };

struct LineForm {
    const char* Word;
    LineKind Kind;
    Act (*Read)(Stage& stage, Scanner& line);
};

// Preparing the world
std::span<const LineForm> Preparations();
// What a user does with the controls and the windows
std::span<const LineForm> UserActs();
// What happens otherwise: the load, events, messages, time
std::span<const LineForm> Stimuli();
std::span<const LineForm> Looks();

// LineError where no form has this word.
const LineForm& FormOf(const std::string& word);

// `raise OWNER.EVENT(ARGS)`
Act ReadEvent(Stage& stage, Scanner& line);

// What `show` prints for one reference.
std::vector<std::string> Shown(Stage& stage, const Reference& reference);

}  // namespace orvelle::replay
