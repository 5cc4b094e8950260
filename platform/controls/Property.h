// A property of a headless control: reads like a value, and an assignment that really changes it tells the control,
// which tells the form's observers and then raises its event, all inside the assignment.
#pragma once

#include <ostream>
#include <type_traits>
#include <utility>

#include "platform/Types.h"

namespace orvelle {

enum class ControlProperty {
    Caption,
    Text,
    Value,
    Enabled,
    Visible,
    ForeColor,
    FillColor,
    Picture,
    Left,
    Top,
    Width,
    Height,
    Min,
    Max,
    TickFrequency,
    ToolTipText,
    List,       // entries of a combo box
    ListIndex,  // selection of a combo box
    Rows,       // rows of a list view; ListView::LastChange tells what
    Selected,   // row of a list view
    Nodes,      // nodes of a tree, or their expansion
    Panels,     // texts of a status bar
    WindowState,
    PopupMenu,
};

class Control;
// Tells the control that owns a property; defined in Control.cpp so that a property needs no control's definition.
void TellControl(Control& owner, ControlProperty property);
Long FitToControl(const Control& owner, ControlProperty property, Long value);

template <typename T>
class Property {
public:
    Property(Control& owningControl, ControlProperty propertyName, T initialValue = T())
        : owner(owningControl), name(propertyName), held(std::move(initialValue)) {}
    Property(const Property&) = delete;

    Property& operator=(T value) {
        if constexpr (std::is_same_v<T, Long>) value = FitToControl(owner, name, value);
        if (value == held) return *this;
        held = std::move(value);
        TellControl(owner, name);
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.held; }
    ~Property() = default;

    operator const T&() const { return held; }
    const T& operator()() const { return held; }

    friend bool operator==(const Property& left, const T& right) { return left.held == right; }
    friend std::ostream& operator<<(std::ostream& out, const Property& property) { return out << property.held; }

private:
    Control& owner;
    const ControlProperty name;
    T held;
};

}  // namespace orvelle
