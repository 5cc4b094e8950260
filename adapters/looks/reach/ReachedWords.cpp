#include "adapters/looks/reach/ReachedWords.h"

namespace orvelle {

void* ReachedWords::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return ReachedWidget::interface_cast(type);
}

QString ReachedWords::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

}  // namespace orvelle
