// Runs a scenario against the panel's logic with every peer scripted, and prints the transcript. The scenario comes
// from the file that is named, or from the standard input.
#include <fstream>
#include <iostream>
#include <string>

#include "replay/Scenario.h"

namespace {

constexpr int CannotRead = 1;

constexpr const char* Help =
    "usage: orvelle-replay [FILE]\n"
    "Plays a scenario of events against the panel's logic, with everything outside it scripted, and prints what the\n"
    "logic did, line by line. The scenario comes from FILE, or from the standard input.\n"
    "\n"
    "  --help, --version\n"
    "\n"
    "Exit status: 0, 1 where the scenario can't be read, or 2 with the line that is wrong on standard error.\n";

int Refuse(const std::string& sentence) {
    std::cerr << sentence << "\n";
    return CannotRead;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    std::ios::sync_with_stdio(false);
    orvelle::replay::Scenario scenario(std::cout);
    if (argumentCount < 2) return scenario.Run(std::cin, std::cerr);
    const std::string argument = arguments[1];
    if (argumentCount > 2) return Refuse("usage: orvelle-replay [FILE]");
    if (argument == "--help") {
        std::cout << Help;
        return 0;
    }
    if (argument == "--version") {
        std::cout << "orvelle-replay " ORVELLE_VERSION "\n";
        return 0;
    }
    if (argument.starts_with("--")) return Refuse("\"" + argument + "\" is not understood; --help tells what is.");
    std::ifstream file(argument, std::ios::binary);
    // A folder can be opened, but not read.
    if (!file || (file.peek(), file.bad())) return Refuse("the scenario " + argument + " cannot be read");
    return scenario.Run(file, std::cerr);
}
