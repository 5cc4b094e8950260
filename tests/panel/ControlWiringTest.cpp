// Whatever a user, a timer or the window system can raise at a control of the panel finds its handler.
#include <gtest/gtest.h>

#include <sstream>

#include "panel/FrmOrvelle.h"
#include "replay/World.h"
#include "tests/panel/NamedEvents.h"

namespace orvelle {
namespace {

const Exceptions UnhandledControls{
    {"J2KToggle.Click", "read when the row is applied"},
    {"K2KToggle.Click", "the same"},
    {"ST.MouseMove", "the icon acts on a press alone"},
    {"ST.MouseUp", "the same"},
    {"ST.MouseDblClick", "the same"},
    {"MultiFSWarningDlg.Load", "it holds nothing but two texts and a button"},
    {"MultiFSWarningDlg.Resize", "its place is not kept"},
    {"MultiFSWarningDlg.QueryUnload", "it may be closed at any time"},
    {"MultiFSWarningDlg.Unloading", "closing it tells nobody"},
    {"MultiFSWarningDlg.Terminate", "the same"},
};

template <typename... Kinds>
bool IsOneOf(const Control& control) {
    return (... || (dynamic_cast<const Kinds*>(&control) != nullptr));
}

template <typename... Kinds>
const Event<>* ClickOf(const Control& control) {
    const Event<>* click = nullptr;
    (..., [&] {
        if (const auto* button = dynamic_cast<const Kinds*>(&control)) click = &button->Click;
    }());
    return click;
}

// What can be raised at a control. A slider's move raises two events, of which each slider has one handled.
std::vector<NamedEvent> EventsOf(const Control& control) {
    const std::string name = control.Name + ".";
    if (const Event<>* click = ClickOf<CommandButton, CheckBox, OptionButton, MenuEntry>(control))
        return {Named(name + "Click", *click)};
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
        std::vector<NamedEvent> events{Named(name + "Click", combo->Click)};
        if (combo->IsEditable()) events.push_back(Named(name + "KeyPress", combo->KeyPress));
        return events;
    }
    if (const auto* text = dynamic_cast<const TextBox*>(&control))
        return text->Locked() ? std::vector<NamedEvent>{} : std::vector{Named(name + "Change", text->Change)};
    if (const auto* slider = dynamic_cast<const Slider*>(&control))
        return {{name + "Change or " + name + "Scroll", slider->Change.IsHandled() != slider->Scroll.IsHandled(), 0}};
    if (const auto* list = dynamic_cast<const ListView*>(&control)) return {Named(name + "ItemClick", list->ItemClick)};
    if (const auto* tree = dynamic_cast<const TreeView*>(&control)) return {Named(name + "NodeClick", tree->NodeClick)};
    if (const auto* timer = dynamic_cast<const Timer*>(&control)) return {Named(name + "Tick", timer->Tick)};
    if (const auto* stub = dynamic_cast<const Stub*>(&control)) return {Named(name + "Terminate", stub->Terminate)};
    if (const auto* tray = dynamic_cast<const cSysTray*>(&control))
        return {Named(name + "MouseMove", tray->MouseMove), Named(name + "MouseDown", tray->MouseDown),
                Named(name + "MouseUp", tray->MouseUp), Named(name + "MouseDblClick", tray->MouseDblClick)};
    const bool isSilent = IsOneOf<Label, Shape, Image, Frame, StatusBar, ImageList, Menu>(control);
    EXPECT_TRUE(isSilent) << control.Name << " is of a kind that this test does not know";
    return {};
}

std::vector<NamedEvent> EventsOf(const Form& form) {
    const std::string name = form.Name + ".";
    std::vector<NamedEvent> events{Named(name + "Load", form.Load), Named(name + "Resize", form.Resize),
                                   Named(name + "QueryUnload", form.QueryUnload),
                                   Named(name + "Unloading", form.Unloading),
                                   Named(name + "Terminate", form.Terminate)};
    for (const Control* control : form.Controls())
        for (const NamedEvent& event : EventsOf(*control)) events.push_back(event);
    return events;
}

TEST(ControlWiringTest, EveryEventIsHandledOnceThePanelIsBuilt) {
    std::ostringstream out;
    replay::World world{out};
    const FrmOrvelle panel{world.Outside()};
    const Form& form = panel;
    const Form& warning = panel.MultiFSWarningDlg;
    ExpectWired(Together({EventsOf(form), EventsOf(warning)}), UnhandledControls);
}

}  // namespace
}  // namespace orvelle
