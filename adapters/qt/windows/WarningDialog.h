// The window of the warning about several computers: it holds nothing up. It comes before the window of the program
// that the user works in, and asks for attention where that is none. Its contents are made when the form is first
// shown; closing it unloads the form.
#pragma once

#include "adapters/qt/windows/FormWindow.h"

namespace orvelle::qt {

class WarningDialog : public FormWindow {
public:
    explicit WarningDialog(Form& warningForm);

protected:
    void Prepare() override;
    void showEvent(QShowEvent* event) override;
};

}  // namespace orvelle::qt
