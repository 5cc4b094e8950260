// What another program of this user may want of the running panel.
#pragma once

namespace orvelle {

enum class Wish { ShowPanel, ShowDeck };

}  // namespace orvelle
