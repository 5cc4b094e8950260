#include "platform/controls/ComboBox.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace orvelle {

void ComboBox::AddItem(std::string entry) {
    list.push_back(std::move(entry));
    Changed(ControlProperty::List);
}

void ComboBox::Clear() {
    list.clear();
    listIndex = -1;
    Changed(ControlProperty::List);
}

Long ComboBox::IndexOf(const std::string& text) const {
    const auto found = std::find(list.begin(), list.end(), text);
    return found == list.end() ? -1 : static_cast<Long>(found - list.begin());
}

void ComboBox::Select(Long index) {
    if (index < -1 || index >= ListCount()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    listIndex = index;
    if (index >= 0) {
        selecting = true;
        Text = list[static_cast<std::size_t>(index)];
        selecting = false;
    }
    Changed(ControlProperty::ListIndex);
}

void ComboBox::UserPick(Long index) {
    if (AcceptsInput() && index >= 0 && index < ListCount()) Select(index);
}

void ComboBox::UserType(std::string text) {
    if (AcceptsInput() && IsEditable()) Text = std::move(text);
}

void ComboBox::UserKey(Long characterCode) {
    if (AcceptsInput()) KeyPress(characterCode);
}

void ComboBox::RaiseEvent(ControlProperty property) {
    if (property == ControlProperty::Text && !selecting) listIndex = -1;
    if (property == ControlProperty::ListIndex && listIndex >= 0) Click();
}

}  // namespace orvelle
