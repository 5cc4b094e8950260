#include "simulators/PlainFile.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace orvelle::simulators {

namespace fs = std::filesystem;

PlainText ReadPlainFile(const fs::path& file, std::uintmax_t most) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) return {};
    if (error) return {std::nullopt, WhyNot(file, "read", error.message())};
    if (status.type() != fs::file_type::regular) return {std::nullopt, WhyNot(file, "read", "it is no plain file")};
    if (fs::file_size(file, error) > most) return {std::nullopt, WhyNot(file, "read", "it is too long")};
    std::ifstream opened(file, std::ios::binary);
    if (!opened) return {std::nullopt, WhyNot(file, "read", "this user may not")};
    return {std::string(std::istreambuf_iterator<char>(opened), {}), ""};
}

std::string WhyNot(const fs::path& file, const char* read, const std::string& reason) {
    return file.string() + " can't be " + read + ": " + reason + ".";
}

}  // namespace orvelle::simulators
