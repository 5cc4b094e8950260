#include "adapters/linux/LoopThread.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "adapters/shared/SignalsHeldBack.h"

namespace orvelle::linux {

LoopThread::LoopThread(std::function<std::shared_ptr<void>(EventLoop& loop)> begin) {
    if (inbox->Descriptor() < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
    const SignalsHeldBack heldBack;
    thread = std::thread([this, work = std::move(begin)] { Serve(work); });
}

LoopThread::~LoopThread() {
    inbox->Post([this] { loop.Stop(); });
    thread.join();
}

void LoopThread::Serve(const std::function<std::shared_ptr<void>(EventLoop& loop)>& begin) {
    const Ticket posted = loop.WhenReadable(inbox->Descriptor(), [this] { inbox->Run(); });
    const std::shared_ptr<void> living = begin(loop);
    loop.Run();
}

}  // namespace orvelle::linux
