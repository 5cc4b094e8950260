#include "platform/controls/Form.h"

#include <algorithm>
#include <utility>

namespace orvelle {

Form::Form(std::string formName, std::string caption)
    : Control(std::move(formName)), Caption(*this, ControlProperty::Caption, std::move(caption)) {
    Visible = false;
}

Ticket Form::Attach(ControlObserver& observer) {
    return observers.Attach(
        [&observer](Control& control, ControlProperty property) { observer.ControlChanged(control, property); });
}

Control* Form::Find(const std::string& controlName) const {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&](const Control* control) { return control->Name == controlName; });
    return found == controls.end() ? nullptr : *found;
}

void Form::Show() {
    if (!isLoaded) {
        isLoaded = true;
        Load();
    }
    Visible = true;
}

void Form::Unload(Long mode) {
    if (!isLoaded) return;
    Long cancel = 0;
    QueryUnload(cancel, mode);
    if (cancel != 0) return;
    Unloading();
    isLoaded = false;
    Visible = false;
    Terminate();
}

void Form::PopupMenu(Menu& menu) {
    poppedMenu = &menu;
    Tell(*this, ControlProperty::PopupMenu);
    poppedMenu = nullptr;
}

void Form::UserMove(double left, double top) {
    Left = left;
    Top = top;
}

void Form::UserState(Long state) {
    WindowState = state;
    Resize();
}

}  // namespace orvelle
