// The signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) call `ask` from the loop instead. To be made before
// any thread is, so that no thread takes one of them: `Watch` then joins the loop once there is an application. The
// three are blocked in this process from the start on; who starts another program must unblock them there. One that
// comes while the loop is held up is served when it goes on.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace orvelle {

class EndSignals {
public:
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals();

    void Watch(std::function<void()> ask);

private:
    int descriptor;
    std::unique_ptr<QSocketNotifier> notifier;
};

}  // namespace orvelle
