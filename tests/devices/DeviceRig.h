// A loop and the far side of a simulator link, which writes down what devices do there.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/shared/Changes.h"
#include "adapters/shared/SimulatorDesk.h"

namespace orvelle {

class WrittenSide : public SimulatorDesk {
public:
    explicit WrittenSide(EventLoop& loop) : changes(loop) {}

    bool TakesInput() const override { return true; }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }
    void AskForSound(const std::string& path) { TakeSound(path); }

    std::vector<std::string> Said;  // what is held, after each change: "Ctrl+F8 | Stick.Button 3"

private:
    void SayInput(const SimulatorInput& input) override;
    void MarkInputChange() override { changes.Mark(); }

    Changes changes;
};

class DeviceRig : public testing::Test {
protected:
    // Serves the loop until it is so. False where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo);

    linux::PollEventLoop loop;
    WrittenSide side{loop};
};

using Lines = std::vector<std::string>;

}  // namespace orvelle
