// Whether the private channel has a mapping of its own, or shares that of the radios.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::VVLPrivEnable_Click() {
    SaveSettingLong("VVLPrivEnable", VVLPrivEnable.Value);
    for (Control* control : PrivateMapping()) control->Enabled = VVLPrivEnable.Value == 1;
}

}  // namespace orvelle
