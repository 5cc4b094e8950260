// The window of the warning about several computers: without an owner, it holds nothing up. Its contents are made when
// the form is first shown; closing it unloads the form.
#pragma once

#include "platform/qt/FormWindow.h"

namespace orvelle {

class WarningDialog : public FormWindow {
public:
    explicit WarningDialog(Form& warningForm);

protected:
    void Prepare() override;
};

}  // namespace orvelle
