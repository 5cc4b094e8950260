// One start of a program on the display: the time to its first mapped window, then, once it has come to rest, its
// memory and what it does while it rests, with all its descendants. For the measurements that compare starts; each
// throws a std::runtime_error where the program shows no window within a generous time, or ends by itself.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace orvelle {

// All that was measured of each figure, by its name, which begins with its place in the table.
using Figures = std::map<std::string, std::vector<double>>;

// The command is a program, and its arguments after blanks.
void MeasureOneStart(const std::string& command, int idleSeconds, Figures& figures);

// Waits for a second in which the computer has little else to do; says so where none comes.
void WaitForQuietComputer();

double Median(std::vector<double> values);

}  // namespace orvelle
