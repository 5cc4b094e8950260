#include "tests/store/PowerLossStory.h"

#include <string_view>

namespace orvelle::store {

void PowerLossStory::GoOn(std::size_t moment) {
    for (; made < moment; ++made) disk.Play(calls[made]);
    const std::string_view marks = disk.BytesOf(MarksName);
    for (std::size_t end; (end = marks.find('\n', heard)) != std::string_view::npos; heard = end + 1)
        promise.Hear(marks.substr(heard, end - heard));
}

}  // namespace orvelle::store
