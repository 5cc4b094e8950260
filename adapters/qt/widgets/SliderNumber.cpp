#include "adapters/qt/widgets/SliderNumber.h"

#include <QEvent>
#include <QSlider>

namespace orvelle::qt {

void SliderNumber::Follow() {
    auto* slider = parentWidget()->findChild<QSlider*>(sliderName);
    if (slider == nullptr) return;
    connect(slider, &QSlider::valueChanged, this, qOverload<int>(&QLabel::setNum));
    setNum(slider->value());
    setAccessibleName(slider->accessibleName());
    slider->installEventFilter(this);
}

bool SliderNumber::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShowToParent) show();
    if (event->type() == QEvent::HideToParent) hide();
    if (event->type() == QEvent::EnabledChange) setEnabled(static_cast<QSlider*>(watched)->isEnabled());
    return QLabel::eventFilter(watched, event);
}

}  // namespace orvelle::qt
