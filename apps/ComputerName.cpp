#include "apps/ComputerName.h"

#include <unistd.h>

#include <array>

namespace orvelle {

std::string ComputerName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 && name[0] ? name.data() : "OrvelleCP";
}

}  // namespace orvelle
