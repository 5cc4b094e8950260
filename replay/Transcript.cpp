#include "replay/Transcript.h"

#include <fnmatch.h>

#include <algorithm>

namespace orvelle::replay {

namespace {

bool Matches(const std::vector<std::string>& patterns, const std::string& name) {
    return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
        return fnmatch(pattern.c_str(), name.c_str(), FNM_NOESCAPE) == 0;
    });
}

}  // namespace

void Transcript::Begin(const std::string& line) { pending = "> " + line + "\n"; }

void Transcript::Flush() {
    out << pending;
    pending.clear();
}

void Transcript::Call(const std::string& name, const std::string& line) {
    if (ended) return;
    if (!only.empty() && !Matches(only, name)) return;
    if (Matches(hidden, name)) return;
    Print(line);
}

void Transcript::Note(const std::string& note) {
    if (!ended) Print("! " + note);
}

void Transcript::Look(const std::string& line) { Print(line); }

void Transcript::End() {
    Note("end");
    ended = true;
}

void Transcript::Print(const std::string& line) {
    Flush();
    out << line << '\n';
}

}  // namespace orvelle::replay
