// The two values of a calibration: how loud a sound must be to pass.
#pragma once

namespace orvelle {

struct Squelch {
    float Input = 0;  // 0 to 100 both
    float Output = 0;
};

}  // namespace orvelle
