// Mirror of a slider: whatever way the user moves it, by mouse, wheel or keys, is one scroll to the new value.
#pragma once

#include <QSlider>

#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/Slider.h"

namespace orvelle::qt {

class SliderMirror : public Mirror {
public:
    SliderMirror(Slider& mirroredSlider, QSlider& slider);

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Value); }

private:
    Slider& control;
    QSlider& widget;
};

}  // namespace orvelle::qt
