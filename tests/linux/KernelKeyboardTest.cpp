// Strokes through a keyboard of the program's own in the kernel. What is written is read from a pipe in the kernel's
// stead; the kernel's own part is tried where it has one.
#include "adapters/linux/KernelKeyboard.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/input.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <optional>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KeyGuard.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

struct Told {
    int Type;
    int Code;
    int Value;
    bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* stream) { *stream << told.Type << ' ' << told.Code << ' ' << told.Value; }

std::vector<Told> Stroke(int key, int value) { return {{EV_KEY, key, value}, {EV_SYN, SYN_REPORT, 0}}; }

std::vector<Told> Joined(std::vector<Told> first, const std::vector<Told>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

class Pipe {
public:
    Pipe() {
        std::array<int, 2> ends;
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
        Out = FileDescriptor(ends[0]);
        In = FileDescriptor(ends[1]);
    }
    // The next events that were written; fewer if they don't come.
    std::vector<Told> Next(std::size_t count) {
        std::vector<Told> told;
        WaitUntil([&] {
            input_event event;
            while (told.size() < count && read(Out.Number(), &event, sizeof event) == sizeof event)
                told.push_back({event.type, event.code, event.value});
            return told.size() == count;
        });
        return told;
    }
    // Whether no process can write to it any more, and nothing waits.
    bool HasEnded() const {
        char byte;
        return read(Out.Number(), &byte, 1) == 0;
    }

    FileDescriptor Out;
    FileDescriptor In;
};

TEST(KernelKeyboardTest, WritesEachStrokeByTheKernelsOwnNumberAndReportsIt) {
    Pipe kernel;
    KernelKeyboard keyboard(std::move(kernel.In));
    keyboard.Send(KEY_F12 + XKeyCodeOffset, KeyStroke::Down);
    keyboard.Send(KEY_RIGHTCTRL + XKeyCodeOffset, KeyStroke::Down);
    keyboard.Send(KEY_F12 + XKeyCodeOffset, KeyStroke::Up);
    EXPECT_EQ(kernel.Next(6), Joined(Joined(Stroke(KEY_F12, 1), Stroke(KEY_RIGHTCTRL, 1)), Stroke(KEY_F12, 0)));
    EXPECT_EQ(keyboard.Problem(), "");
}

TEST(KernelKeyboardTest, HasAKeyForEachScanCodeThatHasOneAndNoOther) {
    Pipe kernel;
    KernelKeyboard keyboard(std::move(kernel.In));
    for (int keyCode = -1; keyCode < 1000; ++keyCode) {
        keyboard.Send(keyCode, KeyStroke::Down);
        const int key = keyCode - static_cast<int>(XKeyCodeOffset);
        const bool isKey = keyCode > 0 && ScanCodeOfLinuxKey(key) != 0;
        EXPECT_TRUE(!isKey || kernel.Next(2) == Stroke(key, 1)) << key;
    }
    keyboard.Send(KEY_ESC + XKeyCodeOffset, KeyStroke::Up);
    EXPECT_EQ(kernel.Next(2), Stroke(KEY_ESC, 0));
}

TEST(KernelKeyboardTest, ThatIsGoneIsOneSentenceAndTakesNothingMore) {
    signal(SIGPIPE, SIG_IGN);
    Pipe kernel;
    KernelKeyboard keyboard(std::move(kernel.In));
    kernel.Out.Close();
    keyboard.Send(KEY_A + XKeyCodeOffset, KeyStroke::Down);
    keyboard.Send(KEY_A + XKeyCodeOffset, KeyStroke::Up);
    EXPECT_EQ(keyboard.Problem(),
              "The kernel takes no key strokes any more, so no key can be pressed on this computer.");
    signal(SIGPIPE, SIG_DFL);
}

TEST(KernelKeyboardTest, ThatMayNotBeMadeIsOneSentence) {
    EXPECT_EQ(KernelKeyboard("/nowhere/uinput").Problem(),
              "This user can't make a keyboard by /nowhere/uinput: No such file or directory.");
    EXPECT_EQ(KernelKeyboard("/dev/null").Problem(),
              "This user can't make a keyboard by /dev/null: Inappropriate ioctl for device.");
}

// The guard has the keyboard, too, so that the kernel keeps it until the guard has let go of everything.
class KernelKeysGuarded : public testing::Test {
protected:
    KernelKeysGuarded() {
        guard.Watch(held, kernel.In.Number());
        keyboard.Send(KEY_F12 + XKeyCodeOffset, KeyStroke::Down);
        held.Beat();
        held.Insert(KEY_F12 + XKeyCodeOffset);
        guard.Wake();
        EXPECT_EQ(kernel.Next(2), Stroke(KEY_F12, 1));
    }

    Pipe kernel;
    KernelKeyboard keyboard{FileDescriptor(fcntl(kernel.In.Number(), F_DUPFD_CLOEXEC, 10))};
    HeldKeys held;
    KeyGuard guard{KEY_GUARD, ":65000"};
};

TEST_F(KernelKeysGuarded, GoUpWherePanelsHang) {
    EXPECT_EQ(kernel.Next(2), Stroke(KEY_F12, 0));
    EXPECT_TRUE(WaitUntil([this] { return held.IsEmpty(); }));
}

TEST_F(KernelKeysGuarded, GoUpWithThePanelAndThenTheKeyboardGoes) {
    kernel.In.Close();
    keyboard = KernelKeyboard(FileDescriptor());
    guard = KeyGuard("", "");  // its line ends, as with the panel's death
    EXPECT_EQ(kernel.Next(2), Stroke(KEY_F12, 0));
    EXPECT_TRUE(WaitUntil([this] { return kernel.HasEnded(); }));
}

// The kernel's own part: whoever reads its keyboards sees the strokes, and a key that goes up as the last descriptor is
// closed. Counted as passed without having been tried only where the kernel has no uinput at all.
TEST(KernelKeyboardInTheKernel, ShowsStrokesAndLetsGoAsItIsClosed) {
    if (!std::filesystem::exists(KernelKeyboard::File)) {
        std::cout << "NOT TRIED: this kernel has no " << KernelKeyboard::File
                  << ", so no keyboard was made in it, and it was not seen to let go of a held key.\n";
        RecordProperty("omitted", "no uinput in this kernel");
        return;
    }
    std::optional<KernelKeyboard> keyboard(std::in_place, KernelKeyboard::File);
    if (access(KernelKeyboard::File, W_OK) != 0) {
        EXPECT_NE(keyboard->Problem(), "");
        std::cout << "TRIED IN PART: this user may not write to " << KernelKeyboard::File << ".\n";
        return;
    }
    ASSERT_EQ(keyboard->Problem(), "");
    FileDescriptor reader;
    ASSERT_TRUE(WaitUntil([&] {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator("/dev/input", error)) {
            FileDescriptor candidate(open(entry.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
            std::array<char, 80> name{};
            if (!candidate || ioctl(candidate.Number(), EVIOCGNAME(name.size()), name.data()) < 0) continue;
            if (std::string(name.data()) == KernelKeyboard::Name) reader = std::move(candidate);
        }
        return static_cast<bool>(reader);
    }));
    const auto next = [&] {
        Told told{0, 0, 0};
        WaitUntil([&] {
            input_event event;
            if (read(reader.Number(), &event, sizeof event) != sizeof event) return false;
            told = {event.type, event.code, event.value};
            return event.type == EV_KEY;
        });
        return told;
    };
    keyboard->Send(KEY_F24 + XKeyCodeOffset, KeyStroke::Down);
    EXPECT_EQ(next(), (Told{EV_KEY, KEY_F24, 1}));
    keyboard.reset();
    EXPECT_EQ(next(), (Told{EV_KEY, KEY_F24, 0}));
}

}  // namespace
}  // namespace orvelle::linux
