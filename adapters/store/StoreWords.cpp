#include "adapters/store/StoreWords.h"

#include <algorithm>

#include "adapters/store/StoreFormat.h"

namespace orvelle::store {

namespace {

constexpr std::size_t MostNamed = 3;

// A name may hold any bytes.
std::string Readable(std::string text) {
    std::ranges::replace_if(
        text, [](unsigned char byte) { return byte < ' ' || byte > '~'; }, '?');
    return '"' + text + '"';
}

}  // namespace

std::string Quoted(const std::filesystem::path& path) { return '"' + FileName(path) + '"'; }

std::string NamedFile(const std::filesystem::path& path) { return "The settings file " + Quoted(path); }

std::string NamedValue(const std::string& place, const std::string& name) {
    return place.empty() ? Readable(name) : Readable(name) + " in " + Readable(place);
}

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (std::size_t index = 0; index < std::min(names.size(), MostNamed); ++index)
        list += (index > 0 ? ", " : "") + names[index];
    if (names.size() > MostNamed) list += " and " + std::to_string(names.size() - MostNamed) + " more";
    return list;
}

}  // namespace orvelle::store
