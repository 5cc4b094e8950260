// What another program of this user may want of the running panel, or a second orvelle-sim of the first.
#pragma once

namespace orvelle {

enum class Wish { ShowPanel, ShowDeck, ShowSimulator };

}  // namespace orvelle
