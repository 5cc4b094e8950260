// A window with a field that keys are captured for, real keys, and what the queue makes of them.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QVBoxLayout>
#include <vector>

#include "adapters/qt/services/QtMessageQueue.h"
#include "adapters/qt/services/QtWindows.h"
#include "platform/controls/Form.h"
#include "platform/controls/TextBox.h"
#include "tests/qt/shell/RealInput.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {

constexpr int KeyEsc = 1;  // also its code

class CaptureRig {
protected:
    CaptureRig() {
        layout->addWidget(&display);
        display.setReadOnly(true);
    }
    ~CaptureRig() = default;

    void Show() {
        panel.show();
        EXPECT_TRUE(WaitForWindowActive(&panel));
        EXPECT_TRUE(ComesTrue([this] { return input.HasFocus(panel); }));
    }
    void Stroke(int key) {
        input.KeyDown(key);
        input.KeyUp(key);
    }
    // The codes of all key-downs up to the one of `last`.
    std::vector<Long> CodesUpTo(Long last) {
        std::vector<Long> codes;
        EXPECT_TRUE(ComesTrue([&] {
            WindowMessage message;
            while (queue.PeekMessageA(message, RemoveMessage)) {
                EXPECT_EQ(message.Number, KeyDownMessage);
                EXPECT_EQ(message.Window, &box);
                EXPECT_EQ(message.LParam & 0xFFFF, 1);
                codes.push_back(message.LParam >> 16);
            }
            return !codes.empty() && codes.back() == last;
        }));
        return codes;
    }

    WindowTable table;
    Form form{"form", ""};
    TextBox box{form, "RWPTTKeyDisplay", nullptr, TextBox::Kind::Locked};
    QWidget panel;
    QVBoxLayout* const layout = new QVBoxLayout(&panel);
    QLineEdit display;
    KeyCapture keys;
    QtWindows windows{table, keys, [this](const Control& control) { return &control == &box ? &display : nullptr; }};
    QtMessageQueue queue{table, keys};
    RealInput input;
};

}  // namespace orvelle::qt
