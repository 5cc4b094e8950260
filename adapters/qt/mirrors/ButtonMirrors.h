// Mirrors of the things to click: a button, a check box, an option.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/Buttons.h"

namespace orvelle::qt {

class ButtonMirror : public Mirror {
public:
    ButtonMirror(CommandButton& commandButton, QPushButton& pushButton);

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Caption); }

private:
    CommandButton& control;
    QPushButton& widget;
    const QString purpose;  // what the form says of the button, for those who cannot see what stands beside it
};

class CheckBoxMirror : public Mirror {
public:
    CheckBoxMirror(CheckBox& checkBox, QCheckBox& box);

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override;

private:
    CheckBox& control;
    QCheckBox& widget;
};

// The options of a page exclude each other in the widgets as they do in the controls; but none may be on.
class OptionMirror : public Mirror {
public:
    OptionMirror(OptionButton& optionButton, QRadioButton& radioButton);

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override;

private:
    OptionButton& control;
    QRadioButton& widget;
};

}  // namespace orvelle::qt
