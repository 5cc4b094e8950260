// What whoever attaches to something gets for it: the attachment holds for as long as the ticket is kept.
#pragma once

#include <memory>

namespace orvelle {

using Ticket = std::shared_ptr<void>;

}  // namespace orvelle
