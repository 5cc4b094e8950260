// Joins the controls of a form and the widgets of its pages by name and kind: the widget of "optRWDriver(0)" is named
// optRWDriver_0. Pages may come one by one; a control whose page is not there yet has no widget, and the page shows the
// control as it then is. The owner attaches the binder to the form, or passes the changes on to it.
#pragma once

#include <QStringList>
#include <memory>
#include <unordered_map>

#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/Form.h"

namespace orvelle::qt {

class Binder : public ControlObserver {
public:
    explicit Binder(Form& boundForm) : form(boundForm) {}

    // Joins the controls that have their widgets in `root`, itself included. The widgets outlive the binder.
    void Bind(QWidget& root);
    // Null where the control has no widget (yet).
    QWidget* WidgetOf(const Control& control) const;

    // What Bind did not find, by name: both are empty where every form is complete and all of them are there.
    QStringList ControlsWithoutWidget() const;
    QStringList WidgetsWithoutControl(const QWidget& root) const;

    void ControlChanged(Control& control, ControlProperty property) override;

    static QString WidgetName(const Control& control);

private:
    Form& form;
    std::unordered_map<const Control*, std::unique_ptr<Mirror>> mirrors;
};

}  // namespace orvelle::qt
