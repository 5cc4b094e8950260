#include "adapters/qt/widgets/SquelchField.h"

#include <QDoubleSpinBox>
#include <QSlider>

#include "adapters/qt/services/SquelchMeasurement.h"

namespace orvelle::qt {

namespace {

constexpr int Greatest = 100;
constexpr int PageStep = 10;

}  // namespace

SquelchField::SquelchField(const QString& name, const QString& title, const QString& tip,
                           std::function<void()> whenChanged)
    : slider(new QSlider(Qt::Horizontal)), number(new QDoubleSpinBox), changed(std::move(whenChanged)) {
    slider->setObjectName(name + QStringLiteral("Slider"));
    number->setObjectName(name);
    slider->setRange(0, Greatest);
    slider->setPageStep(PageStep);
    number->setRange(0, Greatest);
    number->setDecimals(1);
    for (QWidget* part : {static_cast<QWidget*>(slider), static_cast<QWidget*>(number)}) {
        part->setAccessibleName(title);
        part->setToolTip(tip);
    }
    connect(slider, &QSlider::valueChanged, number, [this](int value) { number->setValue(value); });
    connect(number, &QDoubleSpinBox::valueChanged, this, [this](double value) {
        const QSignalBlocker quiet(slider);
        slider->setValue(qRound(value));
        changed();
    });
}

QWidget* SquelchField::Slider() const { return slider; }

QWidget* SquelchField::Number() const { return number; }

double SquelchField::Value() const { return number->value(); }

void SquelchField::SetValue(double value) { number->setValue(AsLevel(value)); }

}  // namespace orvelle::qt
