// Mirror of a combo box, with an edit field or without. A pick is the user's, also of the entry that is selected; the
// Enter key in the field is the control's key 13. Typing selects nothing and completes nothing.
#pragma once

#include <QComboBox>

#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/ComboBox.h"

namespace orvelle::qt {

class ComboMirror : public Mirror {
public:
    ComboMirror(ComboBox& comboBox, QComboBox& box);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::List); }

private:
    void MakeEditable();
    void ShowList();
    void ShowSelection();

    ComboBox& control;
    QComboBox& widget;
};

}  // namespace orvelle::qt
