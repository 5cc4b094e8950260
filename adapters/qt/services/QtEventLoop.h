// The event loop as the adapters use it, over Qt's. It must outlive whoever posts; tasks that wait when it goes are
// dropped. An error that leaves a task is handled as that of any handler.
#pragma once

#include <QObject>

#include "platform/EventLoop.h"

namespace orvelle::qt {

class QtEventLoop : public EventLoop {
public:
    void Post(std::function<void()> task) override;
    void PostAfter(Long milliseconds, std::function<void()> task) override;
    // Runs the task, from now on, whenever there is something to read from the file, which stays open.
    void WhenReadable(int fileDescriptor, std::function<void()> task);

private:
    QObject context;
};

}  // namespace orvelle::qt
