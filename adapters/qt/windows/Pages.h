// The pages of the main window, one for each panel, made from its form. All share one grid (PageGrid.h).
#pragma once

#include "platform/PanelNumber.h"

class QWidget;

namespace orvelle::qt {

constexpr int PageCount = PanelCount;

// The page is named as its frame; its widgets show nothing yet.
QWidget* MakePage(PanelNumber panel, QWidget* parent);

}  // namespace orvelle::qt
