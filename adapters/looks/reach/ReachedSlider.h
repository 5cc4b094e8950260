// A slider as assistive programs see it. The value that they give it is a move of its handle, so that its program hears
// of it.
#pragma once

#include <QSlider>

#include "adapters/looks/reach/ReachedWidget.h"

namespace orvelle {

class ReachedSlider : public ReachedWidget, public QAccessibleValueInterface {
public:
    explicit ReachedSlider(QSlider& shown) : ReachedWidget(shown, QAccessible::Slider), slider(shown) {}

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override { return slider.value(); }
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return slider.maximum(); }
    QVariant minimumValue() const override { return slider.minimum(); }
    QVariant minimumStepSize() const override { return slider.singleStep(); }

private:
    QSlider& slider;
};

}  // namespace orvelle
