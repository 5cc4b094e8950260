// A picture by name: an image of an image list. The shell draws it, the logic only hands it on.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

struct Picture {
    enum Kind : Long { None = 0, Bitmap = 1, Icon = 3 };

    Kind Type = None;
    std::string Name;

    bool operator==(const Picture&) const = default;
};

}  // namespace orvelle
