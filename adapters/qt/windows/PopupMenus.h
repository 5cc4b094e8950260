// Pops up the menu that a form asks for, at the mouse. Attached to the form. The menu stays until the user is done with
// it; nothing waits for it meanwhile.
#pragma once

#include <QMenu>
#include <memory>

#include "platform/controls/Control.h"

namespace orvelle {
class Menu;
}  // namespace orvelle

namespace orvelle::qt {

class PopupMenus : public ControlObserver {
public:
    void ControlChanged(Control& control, ControlProperty property) override;

private:
    void PopUp(const Menu& menu);

    std::unique_ptr<QMenu> shown;
};

}  // namespace orvelle::qt
