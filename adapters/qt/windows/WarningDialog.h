// The window of the warning about several computers: without an owner, it holds nothing up. Its contents are made when
// the form is first shown; closing it unloads the form.
#pragma once

#include "adapters/qt/windows/FormWindow.h"

namespace orvelle::qt {

class WarningDialog : public FormWindow {
public:
    explicit WarningDialog(Form& warningForm);

protected:
    void Prepare() override;
};

}  // namespace orvelle::qt
