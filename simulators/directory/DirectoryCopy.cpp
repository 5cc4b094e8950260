#include "simulators/directory/DirectoryCopy.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <system_error>
#include <utility>

#include "adapters/shared/PrivateFile.h"
#include "adapters/shared/WholeFile.h"
#include "simulators/directory/DirectoryReading.h"

namespace orvelle::directory {

namespace {

namespace fs = std::filesystem;

// The address by FNV-1a of 64 bits, as it may hold what no file's name can.
std::string NameOf(const std::string& address) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char character : address) hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211U;
    std::array<char, 17> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
    return digits.data();
}

void RemoveFile(const fs::path& file) {
    std::error_code error;
    fs::remove(file, error);
}

}  // namespace

DirectoryCopy::DirectoryCopy(const fs::path& folder, std::string itsAddress)
    : address(std::move(itsAddress)),
      text(folder / (NameOf(address) + ".json")),
      tag(folder / (NameOf(address) + ".etag")),
      nextText(folder / (NameOf(address) + ".json.new")),
      nextTag(folder / (NameOf(address) + ".etag.new")) {}

std::optional<std::string> DirectoryCopy::Text() const { return ReadPrivateFile(text, LongestDirectory).Text; }

long long DirectoryCopy::Age() const {
    std::error_code error;
    const auto age = fs::file_time_type::clock::now() - fs::last_write_time(text, error);
    return error ? 0 : std::max<long long>(0, std::chrono::duration_cast<std::chrono::seconds>(age).count());
}

FetchRequest DirectoryCopy::Request(bool hasText) const {
    MakeOwnFolder(text.parent_path());
    DropFetched();
    std::error_code error;
    return {address, nextText, nextTag, hasText && fs::exists(tag, error) ? tag : fs::path()};
}

std::optional<std::string> DirectoryCopy::Fetched() const { return ReadPrivateFile(nextText, LongestDirectory).Text; }

void DirectoryCopy::TakeOver() const {
    RemoveFile(tag);
    std::error_code error;
    fs::rename(nextText, text, error);
    if (!error && fs::file_size(nextTag, error) > 0 && !error) fs::rename(nextTag, tag, error);
    RemoveFile(nextTag);
}

void DirectoryCopy::Confirm() const {
    std::error_code error;
    fs::last_write_time(text, fs::file_time_type::clock::now(), error);
    DropFetched();
}

void DirectoryCopy::DropFetched() const {
    RemoveFile(nextText);
    RemoveFile(nextTag);
}

void DirectoryCopy::Remove() const {
    DropFetched();
    RemoveFile(tag);
    RemoveFile(text);
}

}  // namespace orvelle::directory
