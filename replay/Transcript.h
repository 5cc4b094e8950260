// What a run prints: each stimulus, and under it the calls that the panel made, in order. Calls can be left out by
// patterns over their names. After the end only echoes and what is looked at are printed.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "replay/Value.h"

namespace orvelle::replay {

class Transcript {
public:
    explicit Transcript(std::ostream& output) : out(output) {}

    // The echo of a line is held back until something is printed under it or its run is over, so that a line that turns
    // out to be wrong leaves none.
    void Begin(const std::string& line);
    void Flush();
    void Drop() { pending.clear(); }

    // A line about a call, if calls of that name are printed: "Tessaly.LinkUp".
    void Call(const std::string& name, const std::string& line);
    // "! Timer1"
    void Note(const std::string& note);
    // What a look found.
    void Look(const std::string& line);
    void End();
    // From here on calls print nothing, as after the end.
    void Close() { ended = true; }
    bool Ended() const { return ended; }

    // Shell-style patterns; none print everything, or leave nothing out.
    void Only(std::vector<std::string> patterns) { only = std::move(patterns); }
    void Hide(std::vector<std::string> patterns) { hidden = std::move(patterns); }

private:
    void Print(const std::string& line);

    std::ostream& out;
    std::string pending;
    std::vector<std::string> only;
    std::vector<std::string> hidden;
    bool ended = false;
};

}  // namespace orvelle::replay
