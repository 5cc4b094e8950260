// What the lines of a scenario act on.
#pragma once

#include <functional>

#include "replay/PanelHolder.h"
#include "replay/World.h"

namespace orvelle::replay {

struct Stage {
    explicit Stage(std::ostream& output) : Outside(output) {}

    World Outside;
    PanelHolder Panel{Outside};
    int Line = 0;  // number of the line that is being read, from 1
};

// What a line does once it is found to be right.
using Act = std::function<void()>;

}  // namespace orvelle::replay
