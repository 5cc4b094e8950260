// While it lives no thread can be had: each would ask for more room than there is.
#pragma once

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>

namespace orvelle::linux {

class WithoutThreads {
public:
    WithoutThreads() {
        EXPECT_EQ(pthread_getattr_default_np(&before), 0);
        pthread_attr_t boundless;
        pthread_attr_init(&boundless);
        EXPECT_EQ(pthread_attr_setstacksize(&boundless, std::size_t{1} << 60), 0);
        EXPECT_EQ(pthread_setattr_default_np(&boundless), 0);
        pthread_attr_destroy(&boundless);
    }
    WithoutThreads(const WithoutThreads&) = delete;
    WithoutThreads& operator=(const WithoutThreads&) = delete;
    ~WithoutThreads() {
        EXPECT_EQ(pthread_setattr_default_np(&before), 0);
        pthread_attr_destroy(&before);
    }

private:
    pthread_attr_t before{};
};

}  // namespace orvelle::linux
