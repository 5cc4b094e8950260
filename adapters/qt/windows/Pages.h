// The pages of the main window, one for each panel, made from its form. All share one grid, whose columns follow the
// font: labels, fields, and two columns of buttons.
#pragma once

#include <QSize>

#include "platform/PanelNumber.h"

class QWidget;

namespace orvelle::qt {

constexpr int PageCount = PanelCount;

// The page is named as its frame; its widgets show nothing yet.
QWidget* MakePage(PanelNumber panel, QWidget* parent);
// By the font that it has now.
void AlignToGrid(QWidget& page);
// What every page has room in, whichever is there already.
QSize PageSize(const QWidget& window);

}  // namespace orvelle::qt
