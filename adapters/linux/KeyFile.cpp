#include "adapters/linux/KeyFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

namespace orvelle::linux {

namespace {

std::string_view WithoutBlanksAround(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t\r") + 1 - first);
}

char Meaning(char escaped) {
    switch (escaped) {
        case 's':
            return ' ';
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case 'r':
            return '\r';
        default:
            return escaped;
    }
}

std::string Unescaped(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool isEscape = value[at] == '\\' && at + 1 < value.size();
        text += isEscape ? Meaning(value[++at]) : value[at];
    }
    return text;
}

}  // namespace

std::string_view GroupOfLine(std::string_view line) {
    line = WithoutBlanksAround(line);
    return line.starts_with('[') && line.ends_with(']') ? line.substr(1, line.size() - 2) : "";
}

std::string_view KeyOfLine(std::string_view line) {
    line = WithoutBlanksAround(line);
    if (line.starts_with('#') || line.starts_with('[') || line.find('=') == std::string_view::npos) return "";
    return WithoutBlanksAround(line.substr(0, line.find('=')));
}

KeyFile::KeyFile(std::string_view text) {
    std::map<std::string, std::string>* group = nullptr;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (const std::string_view name = GroupOfLine(line); !name.empty()) group = &groups[std::string(name)];
        if (const std::string_view key = KeyOfLine(line); group && !key.empty())
            group->emplace(key, WithoutBlanksAround(line.substr(line.find('=') + 1)));
    }
}

std::string KeyFile::TextOf(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) return "";
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string KeyFile::Text(const std::string& group, const std::string& key) const {
    const auto values = groups.find(group);
    if (values == groups.end()) return "";
    const auto value = values->second.find(key);
    return value == values->second.end() ? "" : Unescaped(value->second);
}

std::vector<std::string> KeyFile::List(const std::string& group, const std::string& key) const {
    std::vector<std::string> parts;
    std::string rest = Text(group, key) + ";";
    for (std::size_t end; (end = rest.find(';')) != std::string::npos; rest.erase(0, end + 1))
        if (end > 0) parts.push_back(rest.substr(0, end));
    return parts;
}

}  // namespace orvelle::linux
