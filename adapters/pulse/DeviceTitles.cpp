#include "adapters/pulse/DeviceTitles.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "adapters/shared/Utf8.h"

namespace orvelle::pulse {

namespace {

bool BeginsWith(const std::string& text, const std::string& upperCaseBeginning) {
    return text.size() >= upperCaseBeginning.size() &&
           std::equal(upperCaseBeginning.begin(), upperCaseBeginning.end(), text.begin(),
                      [](unsigned char upper, unsigned char other) { return upper == std::toupper(other); });
}

std::string Trimmed(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

// One line. The panel leaves away what names the sound system before a device's name, so it is left away here.
std::string InOneLine(const std::string& description) {
    std::string text = ToUtf8(description);
    std::ranges::replace_if(
        text, [](unsigned char byte) { return byte < ' ' || byte == 0x7f; }, ' ');
    text = Trimmed(text);
    for (bool isFound = true; isFound;) {
        isFound = false;
        for (const std::string prefix : {"DIRECTSOUND - ", "WAVE - "}) {
            if (!BeginsWith(text, prefix)) continue;
            text = Trimmed(text.substr(prefix.size()));
            isFound = true;
        }
    }
    return text;
}

}  // namespace

const std::string& DeviceTitles::For(const std::string& name, const std::string& description) {
    Given& device = given[name];
    if (!device.Title.empty() && device.Description == description) return device.Title;
    taken.erase(device.Title);
    std::string plain = InOneLine(description);
    if (plain.empty()) plain = InOneLine(name);
    if (plain.empty()) plain = "Device";
    device = {description, plain};
    for (int number = 2; !taken.insert(device.Title).second; ++number)
        device.Title = plain + " (" + std::to_string(number) + ")";
    return device.Title;
}

}  // namespace orvelle::pulse
