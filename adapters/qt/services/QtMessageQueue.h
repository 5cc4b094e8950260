// The thread's queue of messages. Key-down messages come out of it one by one while a capture is on; everything else
// that waits is served by Qt whenever the queue is looked at, so that the windows stay alive.
#pragma once

#include "adapters/qt/services/KeyCapture.h"
#include "adapters/shared/WindowTable.h"
#include "platform/Windows.h"

namespace orvelle::qt {

class QtMessageQueue : public MessageQueue {
public:
    QtMessageQueue(const WindowTable& windowTable, KeyCapture& keyCapture) : table(windowTable), keys(keyCapture) {}

    void DoEvents() override;
    bool PeekMessageA(WindowMessage& message, Long remove) override;
    // Qt makes characters of keys itself.
    void TranslateMessage(const WindowMessage& message) override;
    void DispatchMessageA(const WindowMessage& message) override;

private:
    const WindowTable& table;
    KeyCapture& keys;
};

}  // namespace orvelle::qt
