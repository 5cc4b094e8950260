#include <limits>

#include "panel/FrmOrvelle.h"
#include "replay/Lines.h"

namespace orvelle::replay {

namespace {

Act ReadClick(Stage& stage, Scanner& line) {
    const std::string name = line.PlainReference();
    line.ExpectEnd();
    Control& control = stage.Panel.Find(name);
    if (auto* button = dynamic_cast<CommandButton*>(&control)) return [button] { button->UserClick(); };
    if (auto* option = dynamic_cast<OptionButton*>(&control)) return [option] { option->UserClick(); };
    if (auto* entry = dynamic_cast<MenuEntry*>(&control)) return [entry] { entry->UserClick(); };
    throw LineError(name + " is no button, menu entry or option button");
}

Act ReadCheck(Stage& stage, Scanner& line) {
    auto& box = stage.Panel.FindAs<CheckBox>(line.PlainReference(), "check box");
    const Long value = line.WholeNumber(0, 2);
    line.ExpectEnd();
    return [&box, value] { box.UserCheck(value); };
}

Act ReadText(Stage& stage, Scanner& line) {
    const std::string name = line.PlainReference();
    const std::string text = line.Text();
    line.ExpectEnd();
    Control& control = stage.Panel.Find(name);
    if (auto* box = dynamic_cast<TextBox*>(&control)) return [box, text] { box->UserType(text); };
    if (auto* box = dynamic_cast<ComboBox*>(&control)) return [box, text] { box->UserType(text); };
    throw LineError(name + " is no text box or combo box");
}

// The combo boxes alone hear of single characters.
Act ReadKey(Stage& stage, Scanner& line) {
    Control& control = stage.Panel.Find(line.PlainReference());
    const Long code = line.WholeNumber();
    line.ExpectEnd();
    auto* const box = dynamic_cast<ComboBox*>(&control);
    return [box, code] {
        if (box != nullptr) box->UserKey(code);
    };
}

// As with a real mouse there is nothing to click on where an entry, a node or a row is not there, so nothing happens.
Act ReadPick(Stage& stage, Scanner& line) {
    auto& box = stage.Panel.FindAs<ComboBox>(line.PlainReference(), "combo box");
    const Long index = line.WholeNumber();
    line.ExpectEnd();
    return [&box, index] { box.UserPick(index); };
}

Act ReadScroll(Stage& stage, Scanner& line) {
    auto& slider = stage.Panel.FindAs<Slider>(line.PlainReference(), "slider");
    const Long value = line.WholeNumber();
    line.ExpectEnd();
    return [&slider, value] { slider.UserScroll(value); };
}

Act ReadNode(Stage& stage, Scanner& line) {
    const std::string text = line.Text();
    line.ExpectEnd();
    TreeView& tree = stage.Panel.Panel().twCategory;
    return [&tree, text] {
        if (TreeNode* const node = tree.Find(text)) tree.UserClick(*node);
    };
}

Act ReadItem(Stage& stage, Scanner& line) {
    auto& list = stage.Panel.FindAs<ListView>(line.PlainReference(), "list");
    const Long row = line.WholeNumber();
    line.ExpectEnd();
    return [&list, row] { list.UserClickRow(row); };
}

Act ReadMove(Stage& stage, Scanner& line) {
    const double left = line.RealNumber();
    const double top = line.RealNumber();
    line.ExpectEnd();
    return [&panel = stage.Panel.Panel(), left, top] { panel.UserMove(left, top); };
}

Act ReadResize(Stage& stage, Scanner& line) {
    line.ExpectEnd();
    return [&panel = stage.Panel.Panel()] { panel.UserResize(); };
}

Act ReadState(Stage& stage, Scanner& line) {
    const Long state = line.WholeNumber(Form::Normal, Form::Maximised);
    line.ExpectEnd();
    return [&panel = stage.Panel.Panel(), state] { panel.UserState(state); };
}

Act ReadClose(Stage& stage, Scanner& line) {
    const Long mode = line.WholeNumber(0, std::numeric_limits<Long>::max());
    line.ExpectEnd();
    return [&panel = stage.Panel.Panel(), mode] { panel.Unload(mode); };
}

constexpr LineForm Forms[] = {
    {"click", LineKind::Stimulus, ReadClick}, {"check", LineKind::Stimulus, ReadCheck},
    {"text", LineKind::Stimulus, ReadText},   {"key", LineKind::Stimulus, ReadKey},
    {"pick", LineKind::Stimulus, ReadPick},   {"scroll", LineKind::Stimulus, ReadScroll},
    {"node", LineKind::Stimulus, ReadNode},   {"item", LineKind::Stimulus, ReadItem},
    {"move", LineKind::Stimulus, ReadMove},   {"resize", LineKind::Stimulus, ReadResize},
    {"state", LineKind::Stimulus, ReadState}, {"close", LineKind::Stimulus, ReadClose},
};

}  // namespace

std::span<const LineForm> UserActs() { return Forms; }

}  // namespace orvelle::replay
