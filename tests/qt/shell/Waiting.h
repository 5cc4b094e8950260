// Tests wait for what must come, never for a time.
#pragma once

#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {

template <typename Condition>
bool ComesTrue(Condition condition) {
    return WaitFor(condition);
}

// Serves everything that waits, so that what should not come would have.
inline void Settle() {
    for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();
}

}  // namespace orvelle::qt
