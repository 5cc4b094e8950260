// A squelch, 0 to 100, as a slider and a number that say the same: the slider goes by whole numbers, the number by
// tenths.
#pragma once

#include <QWidget>
#include <functional>

class QDoubleSpinBox;
class QSlider;

namespace orvelle::qt {

class SquelchField : public QWidget {
    Q_OBJECT

public:
    // `whenChanged` is called for each change, whoever made it.
    SquelchField(const QString& name, const QString& title, const QString& tip, std::function<void()> whenChanged);

    double Value() const;
    void SetValue(double value);

private:
    QSlider* slider;
    QDoubleSpinBox* number;
    std::function<void()> changed;
};

}  // namespace orvelle::qt
