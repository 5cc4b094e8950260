// Goes wrong in memory in the way that its argument names, with sizes that no compiler can know: "index" is one beyond
// a vector, "frame" writes over the end of a frame, "copy" copies more than its target holds. Ends with 0 if nobody
// minds.
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::size_t Room = 16;

int TakeBeyond(std::size_t size) {
    const std::vector<int> numbers(size);
    return numbers[size];
}

char WriteBeyond(std::size_t size) {
    volatile char room[Room];
    for (std::size_t index = 0; index < size; ++index) room[index] = 'x';
    return room[size % Room];
}

char CopyBeyond(const std::string& text) {
    char room[Room];
    std::memcpy(room, text.data(), text.size());
    return static_cast<volatile char*>(room)[text.size() % Room];
}

}  // namespace

int main(int count, char** arguments) {
    const std::string fault = count > 1 ? arguments[1] : "";
    const std::size_t tooMuch = Room + Room * static_cast<std::size_t>(count);
    if (fault == "index") return TakeBeyond(tooMuch) == 0 ? 0 : 2;
    if (fault == "frame") return WriteBeyond(tooMuch) == 'x' ? 0 : 2;
    if (fault == "copy") return CopyBeyond(std::string(tooMuch, 'x')) == 'x' ? 0 : 2;
    return 2;
}
