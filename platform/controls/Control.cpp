#include "platform/controls/Control.h"

#include <utility>

#include "platform/controls/Form.h"

namespace orvelle {

void TellControl(Control& owner, ControlProperty property) { owner.Changed(property); }

Long FitToControl(const Control& owner, ControlProperty property, Long value) { return owner.Fit(property, value); }

Control::Control(Form& owningForm, std::string controlName, Control* containingFrame)
    : Name(std::move(controlName)), Container(containingFrame), form(&owningForm) {
    form->Register(*this);
}

Control::Control(std::string formName) : Name(std::move(formName)), Container(nullptr), form(nullptr) {}

bool Control::AcceptsInput() const { return Enabled && (Container == nullptr || Container->AcceptsInput()); }

void Control::Changed(ControlProperty property) {
    TellObservers(property);
    RaiseEvent(property);
}

void Control::TellObservers(ControlProperty property) { form->Tell(*this, property); }

}  // namespace orvelle
