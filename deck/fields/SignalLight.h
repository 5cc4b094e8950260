// A state told by a sign, with its words beside it; without words there is nothing to tell. Words that find no room are
// the tool tip.
#pragma once

#include <QWidget>

#include "adapters/looks/Reading.h"
#include "adapters/looks/Signs.h"

namespace orvelle::deck {

class Readout;

class SignalLight : public QWidget, public Reading {
public:
    // The words are a label of the name `name` + "Text".
    explicit SignalLight(const QString& name);

    void Show(Sign newSign, const QString& text);
    Sign Shown() const { return sign; }
    QString Words() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Sign sign = Sign::Off;
    Readout* words;
};

}  // namespace orvelle::deck
