// A slider. The value stays within the range, whoever sets either. Change comes with every change of the value,
// Scroll only with a move by the user, after Change.
#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

class Slider : public Control {
public:
    struct Range {
        Long Min;
        Long Max;
        Long LargeChange;
        Long SmallChange;
    };

    Slider(Form& form, std::string name, Control* container, Range range)
        : Control(form, std::move(name), container),
          LargeChange(range.LargeChange),
          SmallChange(range.SmallChange),
          Min(*this, ControlProperty::Min, range.Min),
          Max(*this, ControlProperty::Max, range.Max) {}

    void UserScroll(Long value) {
        if (!AcceptsInput()) return;
        Value = value;
        Scroll();
    }

    const Long LargeChange;
    const Long SmallChange;
    Property<Long> Min;
    Property<Long> Max;
    Property<Long> TickFrequency{*this, ControlProperty::TickFrequency, 1};
    Property<Long> Value{*this, ControlProperty::Value, 0};
    Event<> Change;
    Event<> Scroll;

protected:
    void RaiseEvent(ControlProperty property) override {
        if (property == ControlProperty::Value) Change();
        if (property == ControlProperty::Min || property == ControlProperty::Max) Value = Value();
    }
    Long Fit(ControlProperty property, Long value) const override {
        if (property != ControlProperty::Value) return value;
        return std::max(Min(), std::min(Max(), value));
    }
};

}  // namespace orvelle
