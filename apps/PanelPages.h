// Turning the pages of a panel that takes pictures of itself, as its user does.
#pragma once

#include "apps/PanelProgram.h"

namespace orvelle {

// By a node of the panel's tree, or one beside the tree. The page is drawn when this returns; false if it didn't show.
bool TurnToPage(PanelProgram& house, TreeNode& node);

// Serves the loop until what is shown has settled.
void Settle();

}  // namespace orvelle
