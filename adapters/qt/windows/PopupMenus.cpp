#include "adapters/qt/windows/PopupMenus.h"

#include <QCursor>

#include "adapters/looks/Text.h"
#include "platform/controls/Buttons.h"
#include "platform/controls/Form.h"

namespace orvelle::qt {

void PopupMenus::ControlChanged(Control& control, ControlProperty property) {
    if (property != ControlProperty::PopupMenu) return;
    const auto* form = dynamic_cast<const Form*>(&control);
    if (form != nullptr && form->PoppedMenu() != nullptr) PopUp(*form->PoppedMenu());
}

void PopupMenus::PopUp(const Menu& menu) {
    shown = std::make_unique<QMenu>();
    shown->setObjectName(ToQt(menu.Name));
    for (MenuEntry* entry : menu.Entries) {
        QAction* action = shown->addAction(ToQt(entry->Caption));
        action->setObjectName(ToQt(entry->Name));
        action->setEnabled(entry->Enabled);
        action->setVisible(entry->Visible);
        QObject::connect(action, &QAction::triggered, [entry] { entry->UserClick(); });
    }
    shown->popup(QCursor::pos());
}

}  // namespace orvelle::qt
