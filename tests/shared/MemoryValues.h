// Keeps the controls' own values for as long as a test runs.
#pragma once

#include <map>

#include "platform/ControlValues.h"

namespace orvelle {

class MemoryValues : public ControlValues {
public:
    std::string GetControlValue(const std::string& name, const std::string& defaultValue) override {
        const auto found = values.find(name);
        return found != values.end() ? found->second : defaultValue;
    }
    void SetControlValue(const std::string& name, const std::string& value) override { values[name] = value; }

private:
    std::map<std::string, std::string> values;
};

}  // namespace orvelle
