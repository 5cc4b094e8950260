// Tests wait for what must come, never for a time; the bound only ends a test that fails.
#pragma once

#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {

template <typename Condition>
bool ComesTrue(Condition condition) {
    constexpr int BoundMilliseconds = 20000;
    return WaitFor(condition, BoundMilliseconds);
}

// Serves everything that waits, so that what should not come would have.
inline void Settle() {
    for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
}

}  // namespace orvelle::qt
