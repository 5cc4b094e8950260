// The filter that makes both outputs sound like a radio.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::VVLFilter_Click() {
    SaveSettingLong("VVLFilter", VVLFilter.Value);
    if (!VVLRunning) return;
    VVL.OutputFilter(Headset, VVLFilter.Value == 1);
    VVL.OutputFilter(Speakers, VVLFilter.Value == 1);
}

}  // namespace orvelle
