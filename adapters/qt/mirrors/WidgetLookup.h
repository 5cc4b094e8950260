// The widget that shows a control; null where none does.
#pragma once

#include <QWidget>
#include <functional>

namespace orvelle {
class Control;
}  // namespace orvelle

namespace orvelle::qt {

using WidgetLookup = std::function<QWidget*(const Control&)>;

}  // namespace orvelle::qt
