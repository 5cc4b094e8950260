#include "simulators/directory/KeptFile.h"

#include <array>
#include <cstddef>
#include <cstdio>

#include "adapters/shared/PrivateFile.h"
#include "adapters/shared/Utf8.h"
#include "adapters/shared/WholeFile.h"

namespace orvelle::directory {

namespace {

constexpr std::size_t Longest = std::size_t{1024} * 1024;  // bytes
constexpr std::string_view Version = "version";

}  // namespace

std::string KeptFile::Read(const std::string& section, const std::function<bool(const JsonMember&)>& take) {
    isDamaged = false;
    const auto [text, reason] = ReadPrivateFile(file, Longest);
    const std::string beginning = what + " in " + file.string() + " can't be read: ";
    if (!text) {
        isDamaged = !reason.empty();
        return reason.empty() ? "" : beginning + reason + ".";
    }
    bool hasVersion = false;
    bool isSound = IsUtf8(*text);
    const auto trouble = isSound ? ReadJsonEntries(*text, {section},
                                                   [&](const JsonEntry& entry) {
                                                       if (entry.Section == section)
                                                           isSound = !entry.IsCut && take(entry.Member) && isSound;
                                                       else if (entry.Member.Name == Version)
                                                           hasVersion = entry.Member.Value.Number == 1;
                                                   })
                                 : std::nullopt;
    isDamaged = trouble || !isSound || !hasVersion;
    return isDamaged ? beginning + "it holds something else." : "";
}

std::string KeptFile::Write(const std::string& section, const std::string& content) {
    if (isDamaged) {
        std::filesystem::path aside = file;
        RenameForGood(file, aside += ".damaged");
        isDamaged = false;
    }
    const std::string text = "{" + JsonText(Version) + ": 1, " + JsonText(section) + ": " + content + "}\n";
    const std::string reason = WritePrivateFile(file, text);
    return reason.empty() ? "" : what + " can't be kept in " + file.string() + ": " + reason + ".";
}

std::string JsonText(std::string_view text) {
    std::string written = "\"";
    for (const char character : text) {
        if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(character));
            written += code.data();
            continue;
        }
        if (character == '"' || character == '\\') written += '\\';
        written += character;
    }
    return written + '"';
}

}  // namespace orvelle::directory
