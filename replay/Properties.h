// What a scenario can look at: the properties of the controls by name, and the variables of the controller.
#pragma once

#include <optional>
#include <string>

namespace orvelle {
class Control;
class FrmOrvelle;
}  // namespace orvelle

namespace orvelle::replay {

// As it is printed; none where a control of its kind has no such property.
std::optional<std::string> PropertyOf(const Control& control, const std::string& property);
// The property that is meant where none is named; "" where that kind has none.
std::string UsualProperty(const Control& control);

// "ReceiveOff(2)", "RadioVoice(0).Server"; none where there is no such variable.
std::optional<std::string> VariableOf(const FrmOrvelle& panel, const std::string& name);

}  // namespace orvelle::replay
