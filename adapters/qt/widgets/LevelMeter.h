// How loud a device is, as a bar with a mark where the squelch stands. What reaches the mark fills the bar's height;
// what does not is a thin line, so that the two are told apart without colours. A louder level is shown at once, and
// falls slowly enough to be read.
#pragma once

#include <QWidget>

#include "adapters/looks/Reading.h"

namespace orvelle::qt {

class LevelMeter : public QWidget, public Reading {
    Q_OBJECT

public:
    explicit LevelMeter(QWidget* parent = nullptr);

    // Both 0 to 100; what lies outside is the nearer end, what is no number 0. A level is to be set each 50 ms.
    void SetLevel(double value);
    void SetMark(double value);
    double Level() const { return level; }
    bool Passes() const { return level >= mark && mark < 100; }
    // Changes too often to be told of: they are read when somebody looks.
    QString Words() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int BarHeight() const;

    double level = 0;
    double mark = 0;
};

}  // namespace orvelle::qt
