// orvelle-key-row FILE: makes a panel's settings with one row in its table of keys, by which the key A of the
// simulator's computer holds the key A here. bench/key-times runs it.
#include <cstdlib>
#include <iostream>

#include "adapters/store/SqliteStore.h"
#include "tests/shared/HandLoop.h"

int main(int argc, char** argv) {
    using namespace orvelle;
    if (argc != 2) {
        std::cerr << "usage: orvelle-key-row FILE\n";
        return EXIT_FAILURE;
    }
    HandLoop loop;
    store::SqliteStore store(loop, argv[1], [](const std::string& sentence) {
        std::cerr << "orvelle-key-row: " << sentence << "\n";
        std::_Exit(EXIT_FAILURE);
    });
    const std::string row = "OrvelleCP\\Key2Key\\1";
    store.SaveSettingString(row, "K2KFSKey", "A");
    store.SaveSettingString(row, "K2KKey", "30");  // by its scan code
    store.SaveSettingString(row, "Toggle", "Push");
    store.HandlerEnded();
}
