// A panel without logic, filled as it might look in use; for pictures and for tests of the layout.
#pragma once

#include "panel/Controls.h"

namespace orvelle::qt {

void FillPlausibly(PanelControls& panel);
// The longest texts that the logic puts anywhere.
void FillWithLongestTexts(PanelControls& panel);

}  // namespace orvelle::qt
