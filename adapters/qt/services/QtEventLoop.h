// The event loop as the adapters use it, over Qt's; made after the program's application, whose handling of failures is
// that of the tasks. Needs Qt Core alone. A task that serves the loop inside itself is entered again if its descriptor
// is still ready.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include "platform/EventLoop.h"

namespace orvelle::qt {

class QtEventLoop : public EventLoop {
public:
    void Post(Task task) override;
    [[nodiscard]] Ticket After(Long milliseconds, Task task) override;
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override;
    [[nodiscard]] Ticket WhenWritable(int descriptor, Task task) override;

private:
    Ticket Await(int descriptor, QSocketNotifier::Type type, Task task);

    QObject context;
};

}  // namespace orvelle::qt
