#include "adapters/qt/mirrors/Mirror.h"

#include "adapters/looks/Text.h"
#include "adapters/qt/mirrors/ButtonMirrors.h"
#include "adapters/qt/mirrors/ComboMirror.h"
#include "adapters/qt/mirrors/DisplayMirrors.h"
#include "adapters/qt/mirrors/ListMirror.h"
#include "adapters/qt/mirrors/SliderMirror.h"
#include "adapters/qt/mirrors/TextMirror.h"
#include "adapters/qt/mirrors/TreeMirror.h"

namespace orvelle::qt {

namespace {

template <typename ControlKind, typename WidgetKind, typename MirrorKind>
bool Make(Control& control, QWidget& widget, std::unique_ptr<Mirror>& made) {
    auto* mirrored = dynamic_cast<ControlKind*>(&control);
    auto* mirroring = qobject_cast<WidgetKind*>(&widget);
    if (mirrored == nullptr || mirroring == nullptr) return false;
    made = std::make_unique<MirrorKind>(*mirrored, *mirroring);
    return true;
}

template <typename... Kinds>
bool IsOneOf(const Control& control) {
    return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

}  // namespace

void Mirror::Show(ControlProperty property) {
    switch (property) {
        case ControlProperty::Enabled:
            widget.setEnabled(control.Enabled);
            break;
        case ControlProperty::Visible:
            ShowVisible();
            break;
        case ControlProperty::ToolTipText:
            ShowToolTip();
            break;
        default:
            ShowOwn(property);
            break;
    }
}

void Mirror::ShowAll() {
    Show(ControlProperty::Enabled);
    ShowAllOwn();
    ShowToolTip();
    ShowVisible();
}

// A control without a tip of its own leaves the form's.
void Mirror::ShowToolTip() {
    if (!control.ToolTipText().empty()) widget.setToolTip(ToQt(control.ToolTipText));
}

std::unique_ptr<Mirror> MakeMirror(Control& control, QWidget& widget) {
    std::unique_ptr<Mirror> made;
    const bool isMade = Make<CommandButton, QPushButton, ButtonMirror>(control, widget, made) ||
                        Make<CheckBox, QCheckBox, CheckBoxMirror>(control, widget, made) ||
                        Make<OptionButton, QRadioButton, OptionMirror>(control, widget, made) ||
                        Make<TextBox, QLineEdit, TextMirror>(control, widget, made) ||
                        Make<ComboBox, QComboBox, ComboMirror>(control, widget, made) ||
                        Make<Slider, QSlider, SliderMirror>(control, widget, made) ||
                        Make<Label, QLabel, LabelMirror>(control, widget, made) ||
                        Make<Shape, Lamp, LampMirror>(control, widget, made) ||
                        Make<Image, StatusPicture, ImageMirror>(control, widget, made) ||
                        Make<StatusBar, StatusFields, StatusBarMirror>(control, widget, made) ||
                        Make<ListView, QTreeView, ListMirror>(control, widget, made) ||
                        Make<TreeView, QTreeWidget, TreeMirror>(control, widget, made) ||
                        Make<Frame, QWidget, FrameMirror>(control, widget, made);
    if (isMade) made->ShowAll();
    return made;
}

bool IsShown(const Control& control) {
    return IsOneOf<CommandButton, CheckBox, OptionButton, TextBox, ComboBox, Slider, Label, Shape, Image, StatusBar,
                   ListView, TreeView, Frame>(control);
}

}  // namespace orvelle::qt
