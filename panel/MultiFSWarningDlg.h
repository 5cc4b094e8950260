// The warning that several computers offer a simulator while Autodetect is on. It holds nothing up, and closing it
// tells nobody.
#pragma once

#include "platform/controls/Buttons.h"
#include "platform/controls/Form.h"
#include "platform/controls/Label.h"

namespace orvelle {

class MultiFSWarningDlg : public Form {
public:
    MultiFSWarningDlg() : Form("MultiFSWarningDlg", "Multiple FS/Velmarc running on network") {
        OKButton.Click = [this] { Unload(); };
    }

    Label lblVelmarcServerMulti{*this, "lblVelmarcServerMulti", nullptr,
                                "Multiple computers running FS with Velmarc were detected on network. You are "
                                "currently configured as autodetection of Velmarc, this may cause software to "
                                "randomly to connect to a PC or another !"};
    Label Label1{*this, "Label1", nullptr,
                 "We strongly suggest you to switch to Specific mode and select a FS/Velmarc server."};
    CommandButton OKButton{*this, "OKButton", nullptr, "OK"};
};

}  // namespace orvelle
