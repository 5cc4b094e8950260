// Runs a scenario against the panel's logic with every peer scripted, and prints the transcript. The scenario comes
// from the file that is named, or from the standard input.
#include <fstream>
#include <iostream>

#include "replay/Scenario.h"

int main(int argumentCount, char** arguments) {
    constexpr int CannotRead = 1;
    std::ios::sync_with_stdio(false);
    orvelle::replay::Scenario scenario(std::cout);
    if (argumentCount < 2) return scenario.Run(std::cin, std::cerr);
    if (argumentCount > 2) {
        std::cerr << "usage: orvelle-replay [FILE]\n";
        return CannotRead;
    }
    std::ifstream file(arguments[1], std::ios::binary);
    // A folder can be opened, but not read.
    if (!file || (file.peek(), file.bad())) {
        std::cerr << "the scenario " << arguments[1] << " cannot be read\n";
        return CannotRead;
    }
    return scenario.Run(file, std::cerr);
}
