// A keyboard of this program's own in the kernel (uinput), for sessions whose windows no X server reaches. What is held
// there goes up when the last process that has its descriptor closes it, however it ends, so the key guard has one too.
// Users may write to the kernel's file only where their system lets them: Problem() then tells it in one sentence.
#pragma once

#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/shared/StrokeTarget.h"

namespace orvelle::linux {

class KernelKeyboard : public StrokeTarget {
public:
    static constexpr const char* File = "/dev/uinput";
    // By which whoever reads the kernel's keyboards knows that these strokes are no user's.
    static constexpr const char* Name = "OrvelleCP keys";

    // Makes the keyboard. The desktop takes a moment to take it up: strokes sent at once may be lost.
    explicit KernelKeyboard(const std::string& file);
    // The one that was made already, by who passed the descriptor on.
    explicit KernelKeyboard(FileDescriptor made) : keyboard(std::move(made)) {}

    std::string Problem() const override { return problem; }
    void Send(int keyCode, KeyStroke stroke) override;
    int Descriptor() const { return keyboard.Number(); }

private:
    bool Make() const;

    FileDescriptor keyboard;
    std::string problem;
};

}  // namespace orvelle::linux
