// The widget that shows a control; null where none does.
#pragma once

#include <QWidget>
#include <functional>

namespace orvelle {

class Control;

using WidgetLookup = std::function<QWidget*(const Control&)>;

}  // namespace orvelle
