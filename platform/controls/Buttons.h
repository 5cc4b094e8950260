// Things to click: a button, a check box, option buttons that exclude each other, a menu and its entries.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Event.h"
#include "platform/controls/Control.h"
#include "platform/controls/ControlArray.h"

namespace orvelle {

class CommandButton : public Control {
public:
    CommandButton(Form& form, std::string name, Control* container, std::string caption)
        : Control(form, std::move(name), container), Caption(*this, ControlProperty::Caption, std::move(caption)) {}

    void UserClick() {
        if (AcceptsInput()) Click();
    }

    Property<std::string> Caption;
    Event<> Click;
};

// Value 0 unticked, 1 ticked, 2 greyed. A change of the value is a click, whoever makes it.
class CheckBox : public Control {
public:
    CheckBox(Form& form, std::string name, Control* container, std::string caption)
        : Control(form, std::move(name), container), Caption(*this, ControlProperty::Caption, std::move(caption)) {}

    void UserCheck(Long value) {
        if (AcceptsInput()) Value = value;
    }

    Property<std::string> Caption;
    Property<Long> Value{*this, ControlProperty::Value, 0};
    Event<> Click;

protected:
    void RaiseEvent(ControlProperty property) override {
        if (property == ControlProperty::Value) Click();
    }
};

// One of a group. Turning it on turns the others off without a click of theirs, then clicks; turning it off clicks
// nothing.
class OptionButton : public Control {
public:
    using Group = ControlArray<OptionButton>;

    OptionButton(Form& form, std::string name, Control* container, const Group& optionGroup, std::string caption)
        : Control(form, std::move(name), container),
          Caption(*this, ControlProperty::Caption, std::move(caption)),
          group(optionGroup) {}

    // A click on an option that is on does nothing.
    void UserClick() {
        if (AcceptsInput()) Value = true;
    }

    Property<std::string> Caption;
    Property<bool> Value{*this, ControlProperty::Value, false};
    Event<> Click;

protected:
    void RaiseEvent(ControlProperty property) override {
        if (property != ControlProperty::Value || !Value) return;
        for (Long index = 0; index < group.Count(); ++index)
            if (&group(index) != this) group(index).Value = false;
        Click();
    }

private:
    const Group& group;
};

// An entry can be clicked at any time.
class MenuEntry : public Control {
public:
    MenuEntry(Form& form, std::string name, std::string caption)
        : Control(form, std::move(name)), Caption(*this, ControlProperty::Caption, std::move(caption)) {}

    void UserClick() { Click(); }

    Property<std::string> Caption;
    Event<> Click;
};

class Menu : public Control {
public:
    Menu(Form& form, std::string name, std::vector<MenuEntry*> menuEntries)
        : Control(form, std::move(name)), Entries(std::move(menuEntries)) {}

    const std::vector<MenuEntry*> Entries;
};

}  // namespace orvelle
