// A line of text. A change of the text raises Change, whoever makes it. A locked one shows what the program puts in.
#pragma once

#include <string>
#include <utility>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

class TextBox : public Control {
public:
    enum class Kind { Editable, Locked };

    TextBox(Form& form, std::string name, Control* container, Kind textKind)
        : Control(form, std::move(name), container), kind(textKind) {}

    bool Locked() const { return kind == Kind::Locked; }
    void UserType(std::string text) {
        if (AcceptsInput() && !Locked()) Text = std::move(text);
    }

    Property<std::string> Text{*this, ControlProperty::Text};
    Event<> Change;

protected:
    void RaiseEvent(ControlProperty property) override {
        if (property == ControlProperty::Text) Change();
    }

private:
    const Kind kind;
};

}  // namespace orvelle
