#include "adapters/qt/windows/NeededFields.h"

#include <QAction>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "adapters/looks/SignIcon.h"
#include "platform/LocalKeyTexts.h"
#include "platform/controls/Buttons.h"
#include "platform/controls/TextBox.h"

namespace orvelle::qt {

namespace {

struct Need {
    const char* Text;
    const char* Enable;
    const char* Set;  // "" for none
    const char* Missing;
};

constexpr std::array Needs{
    Need{"RWPTTKeyDisplay", "RWEnable", "RWPTTKeySet",
         "The talk key of RogerWilco is not set, and push-to-talk ends the panel without it. It must be set after each "
         "start."},
    Need{"RWPath", "RWEnable", "", "RogerWilco can't be started, as the path to its program is empty."},
    Need{"TSPTTKeyDisplay", "TSEnable", "TSPTTKeySet",
         "The talk key of TeamSpeak is not set, and push-to-talk ends the panel without it. It must be set after each "
         "start."},
    Need{"TSPath", "TSEnable", "", "TeamSpeak can't be started, as the path to its program is empty."},
};

constexpr std::array<std::string_view, 3> NoKey{LocalKeyNotSet, LocalKeyCleared, LocalKeyPrompt};

template <typename Kind>
const Kind* Find(const Form& form, const char* name) {
    return dynamic_cast<const Kind*>(form.Find(name));
}

}  // namespace

NeededFields::NeededFields(const Form& form, WidgetLookup widgetLookup) : widgetOf(std::move(widgetLookup)) {
    for (const Need& need : Needs) {
        const auto* text = Find<TextBox>(form, need.Text);
        const auto* enable = Find<CheckBox>(form, need.Enable);
        if (text != nullptr && enable != nullptr)
            fields.push_back({text, enable, Find<CommandButton>(form, need.Set), need.Missing});
    }
}

void NeededFields::ControlChanged(const Control& control) {
    for (Field& field : fields)
        if (&control == field.Text || &control == field.Enable || &control == field.Set) Show(field);
}

void NeededFields::ShowAll() {
    for (Field& field : fields) Show(field);
}

bool NeededFields::IsMissing(const Field& field) {
    if (field.Enable->Value != 1) return false;
    if (field.Set == nullptr) return field.Text->Text == "";
    // While a key is being captured its button is off.
    return field.Set->Enabled && std::find(NoKey.begin(), NoKey.end(), field.Text->Text()) != NoKey.end();
}

void NeededFields::Show(Field& field) {
    auto* edit = qobject_cast<QLineEdit*>(widgetOf(*field.Text));
    const bool isMissing = IsMissing(field);
    if (edit == nullptr || isMissing == !field.Mark.isNull()) return;
    if (!isMissing) {
        delete field.Mark;
        return;
    }
    field.Mark = new QAction(SignIcon(Sign::Waiting), QLatin1String(field.Missing), edit);
    edit->addAction(field.Mark, QLineEdit::TrailingPosition);
}

}  // namespace orvelle::qt
