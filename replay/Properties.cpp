#include "replay/Properties.h"

#include "panel/FrmOrvelle.h"
#include "replay/Value.h"

namespace orvelle::replay {

namespace {

std::string Printed(const Picture& picture) { return Value(picture.Name).Printed(); }

template <typename T>
std::string Printed(const T& value) {
    return Value(value).Printed();
}

template <typename Kind, typename T>
std::optional<std::string> ReadMember(const Control& control, Property<T> Kind::*member) {
    const auto* ofKind = dynamic_cast<const Kind*>(&control);
    if (ofKind == nullptr) return std::nullopt;
    return Printed((ofKind->*member)());
}

template <auto Member>
std::optional<std::string> Read(const Control& control) {
    return ReadMember(control, Member);
}

std::optional<std::string> ReadList(const Control& control) {
    const auto* box = dynamic_cast<const ComboBox*>(&control);
    if (box == nullptr) return std::nullopt;
    std::string entries;
    for (const std::string& entry : box->List()) {
        if (!entries.empty()) entries += " ";
        entries += Printed(entry);
    }
    return entries;
}

std::optional<std::string> ReadListIndex(const Control& control) {
    const auto* box = dynamic_cast<const ComboBox*>(&control);
    return box == nullptr ? std::nullopt : std::optional(Printed(box->ListIndex()));
}

// A lamp's words are its hover text.
std::optional<std::string> ReadLampText(const Control& control) {
    const auto* lamp = dynamic_cast<const Shape*>(&control);
    return lamp == nullptr ? std::nullopt : std::optional(Printed(lamp->ToolTipText));
}

struct PropertyReader {
    const char* Property;
    std::optional<std::string> (*Read)(const Control& control);
};

constexpr PropertyReader Readers[] = {
    {"Caption", Read<&Label::Caption>},
    {"Caption", Read<&CommandButton::Caption>},
    {"Caption", Read<&CheckBox::Caption>},
    {"Caption", Read<&OptionButton::Caption>},
    {"Caption", Read<&MenuEntry::Caption>},
    {"Caption", Read<&Form::Caption>},
    {"Caption", ReadLampText},
    {"Text", Read<&TextBox::Text>},
    {"Text", Read<&ComboBox::Text>},
    {"Value", Read<&CheckBox::Value>},
    {"Value", Read<&OptionButton::Value>},
    {"Value", Read<&Slider::Value>},
    {"Enabled", Read<&Control::Enabled>},
    {"Visible", Read<&Control::Visible>},
    {"ForeColor", Read<&Label::ForeColor>},
    {"FillColor", Read<&Shape::FillColor>},
    {"Picture", Read<&Image::Picture>},
    {"Picture", Read<&cSysTray::Picture>},
    {"Left", Read<&Form::Left>},
    {"Left", Read<&Frame::Left>},
    {"Top", Read<&Form::Top>},
    {"Top", Read<&Frame::Top>},
    {"Width", Read<&Form::Width>},
    {"Width", Read<&Frame::Width>},
    {"Width", Read<&cSysTray::Width>},
    {"Height", Read<&Form::Height>},
    {"Height", Read<&Frame::Height>},
    {"Height", Read<&cSysTray::Height>},
    {"Min", Read<&Slider::Min>},
    {"Max", Read<&Slider::Max>},
    {"TickFrequency", Read<&Slider::TickFrequency>},
    {"List", ReadList},
    {"ListIndex", ReadListIndex},
    {"WindowState", Read<&Form::WindowState>},
};

template <typename... Kinds>
bool IsAnyOf(const Control& control) {
    return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

}  // namespace

std::optional<std::string> PropertyOf(const Control& control, const std::string& property) {
    for (const PropertyReader& reader : Readers) {
        if (property != reader.Property) continue;
        if (std::optional<std::string> value = reader.Read(control)) return value;
    }
    return std::nullopt;
}

std::string UsualProperty(const Control& control) {
    if (IsAnyOf<Label, CommandButton, MenuEntry>(control)) return "Caption";
    if (IsAnyOf<TextBox, ComboBox>(control)) return "Text";
    if (IsAnyOf<CheckBox, OptionButton, Slider>(control)) return "Value";
    if (IsAnyOf<Shape, Frame, Form>(control)) return "Visible";
    if (IsAnyOf<Image, cSysTray>(control)) return "Picture";
    if (IsAnyOf<Timer>(control)) return "Enabled";
    return "";
}

}  // namespace orvelle::replay
