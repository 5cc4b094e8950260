// Marks the fields that a voice driver needs and that are still empty while it is enabled: its talk key, without which
// push-to-talk ends the panel, and the path to its program. The mark stands at the end of the field and says in its tip
// what is missing; the text stays as it is. Told of the form's changes by the window that shows it.
#pragma once

#include <QPointer>
#include <functional>
#include <vector>

#include "adapters/qt/mirrors/WidgetLookup.h"
#include "platform/controls/Form.h"

class QAction;

namespace orvelle {
class CheckBox;
class CommandButton;
class TextBox;
}  // namespace orvelle

namespace orvelle::qt {

class NeededFields {
public:
    // `widgetOf` may know a field's widget only later. The form outlives this object.
    NeededFields(const Form& form, WidgetLookup widgetOf);

    void ControlChanged(const Control& control);
    // After fields have got their widgets.
    void ShowAll();

private:
    struct Field {
        const TextBox* Text;
        const CheckBox* Enable;
        const CommandButton* Set;  // takes the key; null where the user types
        const char* Missing;
        QPointer<QAction> Mark = nullptr;
    };

    static bool IsMissing(const Field& field);
    void Show(Field& field);

    const WidgetLookup widgetOf;
    std::vector<Field> fields;
};

}  // namespace orvelle::qt
