// What the user set on another day: the settings store, and the sentences that it has for the user.
#pragma once

#include <string>

#include "adapters/shared/NoticeBoard.h"
#include "adapters/store/SqliteStore.h"

namespace orvelle {

class UserSettings {
public:
    // Where this user's settings are, by the desktop's convention.
    static std::string File();

    // `file` is made with its folder where missing. What is wrong with it is told in the loop's first turn.
    UserSettings(EventLoop& loop, const std::string& file)
        : Notices(loop), Store(file, [this](const std::string& sentence) { Notices.Tell(sentence); }) {}

    NoticeBoard Notices;
    store::SqliteStore Store;  // the settings store, the registry, and the outside controls' own values
};

}  // namespace orvelle
