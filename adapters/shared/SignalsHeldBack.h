// While it lives, this thread and those that it starts take none of the program's signals, which are for the main
// thread. Held by whoever starts a thread.
#pragma once

#include <pthread.h>

#include <csignal>

namespace orvelle {

class SignalsHeldBack {
public:
    SignalsHeldBack() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
    }
    SignalsHeldBack(const SignalsHeldBack&) = delete;
    SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;
    ~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }

private:
    sigset_t before{};
};

}  // namespace orvelle
