// Whether one of the two links stands, as the deck wants it.
#pragma once

namespace orvelle {

enum class LinkState { Down, Up };

}  // namespace orvelle
