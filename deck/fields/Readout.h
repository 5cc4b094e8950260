// A text that the deck reads out, of any length, in the width that its column gives it: it wraps, within a word where
// the word is longer than the line.
#pragma once

#include <QLabel>
#include <string>

#include "adapters/looks/Text.h"

namespace orvelle::deck {

class Readout : public QLabel {
public:
    explicit Readout(const QString& name);

    void Show(const QString& text);
    void Show(const std::string& text) { Show(ToQt(text)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::deck
