// A voice duty, which one computer holds at a time: its record's role name, the id of this panel's record, the id of
// another computer's, and what makes this panel want it.
#pragma once

#include "platform/controls/Buttons.h"

namespace orvelle {

struct VoiceRole {
    const char* Name;
    Long& Own;      // 0: none
    Long& Foreign;  // 0: none
    const CheckBox& Enable;
    const OptionButton::Group* Driver;  // null: the check box alone decides
    Long DriverOption;                  // beside option 0, the transmit selector

    bool Wanted() const {
        return Enable.Value == 1 && (Driver == nullptr || (*Driver)(0).Value || (*Driver)(DriverOption).Value);
    }
};

}  // namespace orvelle
