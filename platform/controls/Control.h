// What all headless controls share: a name, a container, Enabled and Visible. A control belongs to a form, which
// passes each change on to its observers.
#pragma once

#include <string>

#include "platform/controls/Property.h"

namespace orvelle {

class Form;

class Control {
public:
    // `containingFrame` is the frame that the control sits on, null directly on the form.
    Control(Form& owningForm, std::string controlName, Control* containingFrame = nullptr);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    // Whether the user can act on it: it is enabled, and so is the frame that it sits on.
    bool AcceptsInput() const;

    const std::string Name;
    Control* const Container;
    Property<bool> Enabled{*this, ControlProperty::Enabled, true};
    Property<bool> Visible{*this, ControlProperty::Visible, true};
    Property<std::string> ToolTipText{*this, ControlProperty::ToolTipText};

protected:
    explicit Control(std::string formName);  // a form, which is its own

    // Tells the form's observers, then raises the control's own event.
    void Changed(ControlProperty property);
    virtual void TellObservers(ControlProperty property);
    virtual void RaiseEvent(ControlProperty) {}
    virtual Long Fit(ControlProperty, Long value) const { return value; }

private:
    friend void TellControl(Control& owner, ControlProperty property);
    friend Long FitToControl(const Control& owner, ControlProperty property, Long value);

    Form* const form;
};

// Hears of every change of every control of a form, before the control's own event.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void ControlChanged(Control& control, ControlProperty property) = 0;
};

}  // namespace orvelle
