// A sentence that changes, with its sign before it. Assistive programs are told of a new one.
#pragma once

#include "adapters/looks/SignLabel.h"

namespace orvelle::qt {

class SignedSentence : public SignLabel {
    Q_OBJECT

public:
    explicit SignedSentence(QWidget* parent = nullptr);

    void Say(Sign newSign, const QString& sentence);
    Sign ShownSign() const override { return sign; }

private:
    Sign sign = Sign::Off;
};

}  // namespace orvelle::qt
