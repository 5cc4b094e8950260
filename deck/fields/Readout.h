// A line of text that the deck reads out, of any length, in the width that its column gives it.
#pragma once

#include <string>

#include "adapters/looks/ElidedLabel.h"
#include "adapters/looks/Text.h"

namespace orvelle::deck {

class Readout : public ElidedLabel {
public:
    explicit Readout(const QString& name);

    void Show(const QString& text) { setText(text); }
    void Show(const std::string& text) { setText(ToQt(text)); }
};

}  // namespace orvelle::deck
