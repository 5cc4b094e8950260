// A squelch, 0 to 100, as a slider and a number that say the same: the slider goes by whole numbers, the number by
// tenths. Whoever arranges them owns the two widgets.
#pragma once

#include <QObject>
#include <functional>

class QDoubleSpinBox;
class QSlider;
class QWidget;

namespace orvelle::qt {

class SquelchField : public QObject {
    Q_OBJECT

public:
    // `whenChanged` is called for each change, whoever made it.
    SquelchField(const QString& name, const QString& title, const QString& tip, std::function<void()> whenChanged);

    QWidget* Slider() const;
    QWidget* Number() const;
    double Value() const;
    void SetValue(double value);

private:
    QSlider* slider;
    QDoubleSpinBox* number;
    std::function<void()> changed;
};

}  // namespace orvelle::qt
