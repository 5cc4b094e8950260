#include "tests/store/PowerLossJournal.h"

#include <fstream>

namespace orvelle::store {

std::vector<JournaledCall> ReadJournal(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<JournaledCall> calls;
    DiskCallHead head{};
    while (stream.read(reinterpret_cast<char*>(&head), sizeof head)) {
        JournaledCall& call = calls.emplace_back(JournaledCall{head, std::string(head.FirstSize, '\0'), {}});
        call.Second.resize(head.SecondSize);
        stream.read(call.First.data(), static_cast<std::streamsize>(call.First.size()));
        stream.read(call.Second.data(), static_cast<std::streamsize>(call.Second.size()));
    }
    return calls;
}

}  // namespace orvelle::store
