// Mirror of a text box. A locked one shows its text on the window's colour, as a display and not as a field to fill.
#pragma once

#include <QLineEdit>

#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/TextBox.h"

namespace orvelle::qt {

class TextMirror : public Mirror {
public:
    TextMirror(TextBox& textBox, QLineEdit& lineEdit);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Text); }

private:
    void ShowLocked();

    TextBox& control;
    QLineEdit& widget;
};

}  // namespace orvelle::qt
