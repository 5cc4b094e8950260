// A directory of voice channels as the table of directories and the text below it tell it.
#pragma once

#include <QString>

#include "adapters/looks/Signs.h"
#include "simulators/directory/Directories.h"

namespace orvelle {

// "now", "3 min", "2 h, a copy"; "-" for -1 seconds.
QString AgeWords(const directory::DirectoryTold& told);
// Off: not had yet; waiting: it counts, but not all of it is as it should be.
Sign SignOf(const directory::DirectoryTold& told);
// What is wrong with it, on one line; "None".
QString TroubleWords(const directory::DirectoryTold& told);
// All of it, a line for each mistake; "" for none.
QString FaultWords(const directory::DirectoryTold& told);

}  // namespace orvelle
