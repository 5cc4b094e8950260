// A list of entries with one selected, and a text: free to edit, or that of the selection. Selecting an entry puts
// its text into the box and raises Click, whoever does it; a text of its own selects nothing.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

constexpr Long EnterKey = 13;  // as a character code

class ComboBox : public Control {
public:
    enum class Kind { Editable, List };

    ComboBox(Form& form, std::string name, Control* container, Kind comboKind, std::string text = "")
        : Control(form, std::move(name), container),
          Text(*this, ControlProperty::Text, std::move(text)),
          kind(comboKind) {}

    bool IsEditable() const { return kind == Kind::Editable; }

    void AddItem(std::string entry);
    // Empties the list; the text stays.
    void Clear();
    const std::vector<std::string>& List() const { return list; }
    Long ListCount() const { return static_cast<Long>(list.size()); }
    // The first entry equal to `text`, or -1.
    Long IndexOf(const std::string& text) const;
    // -1 where nothing is selected.
    Long ListIndex() const { return listIndex; }
    // Only where one is selected.
    const std::string& SelectedEntry() const { return list.at(static_cast<std::size_t>(listIndex)); }
    // An index that is no entry's is run-time error 9; -1 selects nothing and raises no click.
    void Select(Long index);

    // The user's pick of the selected entry clicks again.
    void UserPick(Long index);
    void UserType(std::string text);
    void UserKey(Long characterCode);

    Property<std::string> Text;
    Event<> Click;
    Event<Long> KeyPress;  // character code

protected:
    void RaiseEvent(ControlProperty property) override;

private:
    const Kind kind;
    std::vector<std::string> list;
    Long listIndex = -1;
    bool selecting = false;
};

}  // namespace orvelle
