// A state told by shape and colour, with its words beside it: a filled disc is on, an empty ring off, a triangle is on
// its way, and without words there is nothing to tell. Words that find no room are the tool tip.
#pragma once

#include <QWidget>

namespace orvelle::deck {

class Readout;

enum class Signal { Off, On, Waiting };

class SignalLight : public QWidget {
public:
    // The words are a label of the name `name` + "Text".
    explicit SignalLight(const QString& name);

    void Show(Signal newSignal, const QString& text);
    Signal Shown() const { return signal; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Signal signal = Signal::Off;
    Readout* words;
};

}  // namespace orvelle::deck
