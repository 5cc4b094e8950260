#include "adapters/qt/mirrors/SliderMirror.h"

#include <algorithm>

namespace orvelle::qt {

namespace {

// More ticks than these run together into a bar.
constexpr int MostTicks = 20;

}  // namespace

SliderMirror::SliderMirror(Slider& mirroredSlider, QSlider& slider)
    : Mirror(mirroredSlider, slider), control(mirroredSlider), widget(slider) {
    widget.setOrientation(Qt::Horizontal);
    widget.setTickPosition(QSlider::TicksBelow);
    widget.setPageStep(control.LargeChange);
    widget.setSingleStep(control.SmallChange);
    connect(&widget, &QSlider::actionTriggered, this, [this](int) {
        // The widget has the position already and takes it as its value when this is done.
        const int position = widget.sliderPosition();
        if (position == control.Value) return;
        control.UserScroll(position);
        ShowOwn(ControlProperty::Value);
    });
}

void SliderMirror::ShowOwn(ControlProperty property) {
    if (property != ControlProperty::Value && property != ControlProperty::Min && property != ControlProperty::Max &&
        property != ControlProperty::TickFrequency)
        return;
    widget.setRange(control.Min, control.Max);
    const int frequency = std::max(1, control.TickFrequency());
    const int steps = (control.Max - control.Min) / frequency;
    widget.setTickInterval(frequency * std::max(1, (steps + MostTicks - 1) / MostTicks));
    widget.setValue(control.Value);
}

}  // namespace orvelle::qt
