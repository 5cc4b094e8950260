// A notice below the fields that it speaks of; without a sentence it isn't there.
#pragma once

#include "adapters/looks/SignLabel.h"

namespace orvelle::deck {

class Remark : public Notice {
public:
    explicit Remark(const QString& name);

    // "" for none.
    void Show(const QString& sentence);
};

}  // namespace orvelle::deck
