#include "adapters/shared/Changes.h"

namespace orvelle {

void Changes::Mark() {
    if (isMarked || observers.IsEmpty()) return;
    isMarked = true;
    telling = loop.After(0, [this] {
        isMarked = false;
        observers.Tell();
    });
}

}  // namespace orvelle
