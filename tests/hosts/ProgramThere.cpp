#include "tests/hosts/ProgramThere.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace orvelle::hosts {

long long Now() {
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

ProgramThere::ProgramThere(const Host& host, const std::vector<std::string>& words) : Process(host.Start(words)) {
    fcntl(Process.Output(), F_SETFL, O_NONBLOCK);
}

void ProgramThere::Take() {
    std::array<char, 65536> bytes{};
    for (ssize_t count; (count = read(Process.Output(), bytes.data(), bytes.size())) > 0;)
        part.append(bytes.data(), static_cast<std::size_t>(count));
    std::size_t begin = 0;
    for (std::size_t feed; (feed = part.find('\n', begin)) != std::string::npos; begin = feed + 1) {
        const std::string line = part.substr(begin, feed - begin);
        const std::size_t blank = line.find(' ');
        if (blank == std::string::npos) continue;
        events.push_back({std::atoll(line.c_str()), line.substr(blank + 1)});
        Heard(events.back().Text);
    }
    part.erase(0, begin);
}

std::optional<long long> ProgramThere::Told(const std::string& text, long long since) const {
    const auto found =
        std::ranges::find_if(events, [&](const Event& each) { return each.At >= since && each.Text == text; });
    return found != events.end() ? std::optional(found->At) : std::nullopt;
}

std::string ProgramThere::LastTold() const {
    constexpr std::ptrdiff_t Shown = 12;
    std::string text;
    const auto count = std::min(Shown, std::ssize(events));
    for (auto each = events.end() - count; each != events.end(); ++each)
        text += "\n    " + std::to_string(each->At / 1000) + " ms  " + each->Text;
    return text;
}

std::size_t ProgramThere::TimesTold(const std::string& beginning) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(events, [&](const Event& each) { return each.Text.starts_with(beginning); }));
}

}  // namespace orvelle::hosts
