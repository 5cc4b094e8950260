// What the programs that tests start on hosts have alike: commands come as lines on the standard input, and each event
// is told as a line on the standard output, after its moment in microseconds of the monotonic clock, which all hosts of
// one computer share.
#pragma once

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/SetUpFile.h"
#include "platform/EventLoop.h"

namespace orvelle::hosts {

inline long long Microseconds() {
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

inline void Tell(const std::string& text) { std::cout << Microseconds() << ' ' << text << std::endl; }

class Commands {
public:
    // `ended` is called when the input has ended.
    Commands(EventLoop& loop, std::function<void(std::istringstream&)> take, std::function<void()> ended)
        : takeLine(std::move(take)),
          end(std::move(ended)),
          readable(loop.WhenReadable(STDIN_FILENO, [this] { Read(); })) {}

private:
    void Read() {
        std::array<char, 4096> bytes{};
        const ssize_t count = read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count <= 0) {
            readable.End();
            return end();
        }
        text.append(bytes.data(), static_cast<std::size_t>(count));
        for (std::size_t feed; (feed = text.find('\n')) != std::string::npos;) {
            std::istringstream line(text.substr(0, feed));
            text.erase(0, feed + 1);
            takeLine(line);
        }
    }

    const std::function<void(std::istringstream&)> takeLine;
    const std::function<void()> end;
    std::string text;  // of lines that are not whole yet
    Ticket readable;
};

// The whole of such a program: a Program of the set-up that its argument, a setup.json, names takes the commands.
template <typename Program>
int Serve(const char* name, int count, char** words) {
    const auto [setUp, sentence] = mqtt::ReadSetUpFile(count > 1 ? words[1] : "");
    if (!setUp) {
        std::cerr << name << ": no set-up: " << sentence << std::endl;
        return EXIT_FAILURE;
    }
    linux::PollEventLoop loop;
    Program program(loop, *setUp);
    const Commands commands(
        loop, [&](std::istringstream& line) { program.Take(line); }, [&] { loop.Stop(); });
    loop.Run();
    return EXIT_SUCCESS;
}

}  // namespace orvelle::hosts
