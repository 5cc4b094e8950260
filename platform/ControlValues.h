// The few values that the outside controls keep for themselves between runs: which server, and where the framework
// runs.
#pragma once

#include <string>

namespace orvelle {

class ControlValues {
public:
    virtual ~ControlValues() = default;

    virtual std::string GetControlValue(const std::string& name, const std::string& defaultValue) = 0;
    virtual void SetControlValue(const std::string& name, const std::string& value) = 0;
};

}  // namespace orvelle
