// Sentences for the user about what can't be told on the panel, as trouble with the settings.
#pragma once

#include <string>

namespace orvelle {

class Notices {
public:
    virtual ~Notices() = default;

    virtual void Tell(const std::string& sentence) = 0;
};

}  // namespace orvelle
