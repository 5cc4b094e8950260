// The number beside a slider: shows the value of the slider that is its buddy, and hides with it.
#pragma once

#include <QLabel>

class QSlider;

namespace orvelle::qt {

class SliderNumber : public QLabel {
    Q_OBJECT

public:
    explicit SliderNumber(QWidget* parent = nullptr) : QLabel(parent) {}

    // Once the form has given it its buddy.
    void Follow();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace orvelle::qt
