#include "adapters/looks/reach/ReachedSlider.h"

namespace orvelle {

void* ReachedSlider::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return ReachedWidget::interface_cast(type);
}

QString ReachedSlider::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? QString::number(slider.value()) : ReachedWidget::text(kind);
}

void ReachedSlider::setCurrentValue(const QVariant& value) {
    if (slider.isEnabled()) slider.setSliderPosition(qRound(value.toDouble()));
}

}  // namespace orvelle
