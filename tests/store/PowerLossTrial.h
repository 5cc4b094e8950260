// The store under losses of power. A process runs stores, one after another, and all it does to the disk is journalled
// (PowerLossWatch.cpp). Then the power is lost so many times, at a moment of the journal that chance chooses: the disk
// is laid down as it may be found (PowerLossDisk.h), and a store is opened from it.
#pragma once

#include <cstddef>

namespace orvelle::store {

constexpr std::size_t PowerLossParts = 7;                             // of the process's runs
constexpr const char* PowerLossStore = "OrvelleCP/OrvelleCP.sqlite";  // in the folder that the process is given

// Prints a table by what was going on. True if each value was, every time, the last that was saved or one of the unit
// that was being saved, or a sentence was told and it was one of the copy.
bool TryPowerLosses(int times, unsigned seed);

}  // namespace orvelle::store
