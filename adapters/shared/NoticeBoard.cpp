#include "adapters/shared/NoticeBoard.h"

#include <utility>

namespace orvelle {

void NoticeBoard::Tell(const std::string& sentence) {
    if (untold.empty())
        delivery.Raise([this] { Told(std::exchange(untold, "")); });
    else
        untold += '\n';
    untold += sentence;
}

}  // namespace orvelle
