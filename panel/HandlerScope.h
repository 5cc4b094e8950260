// What one outermost handler writes to the settings store is one unit. A handler opens a scope; the last one to close
// tells the store. A handler that waits for the user suspends its scope, so that what it wrote is kept, and handlers
// that run meanwhile are units of their own.
#pragma once

#include <utility>

#include "platform/SettingsStore.h"

namespace orvelle {

class HandlerDepth {
public:
    explicit HandlerDepth(SettingsStore& settingsStore) : store(settingsStore) {}

    class Scope {
    public:
        explicit Scope(HandlerDepth& handlerDepth) : depth(handlerDepth) { ++depth.level; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() {
            if (--depth.level == 0) depth.store.HandlerEnded();
        }

    private:
        HandlerDepth& depth;
    };

    class Suspension {
    public:
        explicit Suspension(HandlerDepth& handlerDepth) : depth(handlerDepth), level(std::exchange(depth.level, 0)) {
            depth.store.HandlerEnded();
        }
        Suspension(const Suspension&) = delete;
        Suspension& operator=(const Suspension&) = delete;
        ~Suspension() { depth.level = level; }

    private:
        HandlerDepth& depth;
        const int level;
    };

private:
    SettingsStore& store;
    int level = 0;
};

}  // namespace orvelle
