// The number beside a slider: shows the value of the slider that `sliderName` names, on the same page, and hides with
// it.
#pragma once

#include <QLabel>

class QSlider;

namespace orvelle::qt {

class SliderNumber : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString sliderName READ SliderName WRITE SetSliderName)

public:
    explicit SliderNumber(QWidget* parent = nullptr) : QLabel(parent) {}

    QString SliderName() const { return sliderName; }
    void SetSliderName(const QString& name) { sliderName = name; }
    // Once the page has its slider.
    void Follow();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString sliderName;
};

}  // namespace orvelle::qt
