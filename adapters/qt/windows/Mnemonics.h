// Gives the buttons, boxes and labelled fields of a page the letters that lead to them with Alt: no letter twice, as
// many controls as their captions let, and the same ones at every start.
#pragma once

class QWidget;

namespace orvelle::qt {

// Once the page's widgets have their captions.
void AssignMnemonics(QWidget& page);

}  // namespace orvelle::qt
