// Things that show and are not acted on: a label, a lamp, an image, a frame with the controls on it.
#pragma once

#include <string>
#include <utility>

#include "platform/controls/Control.h"
#include "platform/controls/Picture.h"

namespace orvelle {

constexpr Long ButtonTextColour = static_cast<Long>(0x80000012);  // a system colour by number

class Label : public Control {
public:
    Label(Form& form, std::string name, Control* container, std::string caption = "")
        : Control(form, std::move(name), container), Caption(*this, ControlProperty::Caption, std::move(caption)) {}

    Property<std::string> Caption;
    Property<Long> ForeColor{*this, ControlProperty::ForeColor, ButtonTextColour};
};

// A lamp. Colours are 0x00BBGGRR.
class Shape : public Control {
public:
    Shape(Form& form, std::string name, Control* container, Long fillColor, std::string toolTipText = "")
        : Control(form, std::move(name), container), FillColor(*this, ControlProperty::FillColor, fillColor) {
        ToolTipText = std::move(toolTipText);
        Visible = false;
    }

    Property<Long> FillColor;
};

class Image : public Control {
public:
    Image(Form& form, std::string name, Control* container) : Control(form, std::move(name), container) {}

    Property<orvelle::Picture> Picture{*this, ControlProperty::Picture};
};

// A panel that other controls sit on; disabled, it disables them all. Place and size in twips.
class Frame : public Control {
public:
    Frame(Form& form, std::string name) : Control(form, std::move(name)) {}

    Property<double> Left{*this, ControlProperty::Left, 0};
    Property<double> Top{*this, ControlProperty::Top, 0};
    Property<double> Width{*this, ControlProperty::Width, 0};
    Property<double> Height{*this, ControlProperty::Height, 0};
};

}  // namespace orvelle
