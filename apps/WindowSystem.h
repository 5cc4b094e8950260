// What this computer shows windows on, asked before Qt would abort the program for want of it. For programs that have
// windows; each system has its own source file for it, which the build picks.
#pragma once

#include <string>

namespace orvelle {

struct WindowSystem {
    std::string Name;     // as Qt calls it
    std::string Missing;  // one sentence, "" if windows can be shown
};

WindowSystem FindWindowSystem();

}  // namespace orvelle
