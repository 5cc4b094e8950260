// One headless control and the widget that shows it. The binder makes the mirror and tells it of the control's changes;
// the mirror brings them to the widget, and what the user does to the widget to the control. A change by the program
// never comes back as an act of the user, and after an act the widget shows what the control made of it.
#pragma once

#include <QObject>
#include <QWidget>
#include <memory>

#include "platform/controls/Control.h"

namespace orvelle::qt {

class Mirror : public QObject {
public:
    Mirror(Control& mirroredControl, QWidget& mirroringWidget) : control(mirroredControl), widget(mirroringWidget) {}

    QWidget& Widget() const { return widget; }
    // Brings one property to the widget.
    void Show(ControlProperty property);
    // Brings all of them; called once when the mirror is made.
    void ShowAll();

protected:
    virtual void ShowVisible() { widget.setVisible(control.Visible); }
    virtual void ShowToolTip();
    // The properties of the kind.
    virtual void ShowOwn(ControlProperty property) = 0;
    virtual void ShowAllOwn() = 0;

private:
    Control& control;
    QWidget& widget;
};

// Null where control and widget are not of one kind.
std::unique_ptr<Mirror> MakeMirror(Control& control, QWidget& widget);
// Whether a control of that kind is shown by a widget of a form at all; timers, image lists, menus and the like are
// not.
bool IsShown(const Control& control);

}  // namespace orvelle::qt
