// What the user set on another day: the settings store, and the sentences that it has for the user.
#pragma once

#include <functional>
#include <string>

#include "adapters/shared/NoticeBoard.h"
#include "adapters/store/SqliteStore.h"
#include "platform/Ticket.h"

namespace orvelle {

class ThisProcess;

class UserSettings {
public:
    // Where this user's settings are, by the desktop's convention.
    static std::string File();

    // `file` is made with its folder where missing. What is wrong with it is told in the loop's first turn, and what
    // was lost at the end of the process on standard error.
    UserSettings(ThisProcess& process, EventLoop& loop, const std::string& file);
    UserSettings(const UserSettings&) = delete;
    UserSettings& operator=(const UserSettings&) = delete;
    ~UserSettings();

    NoticeBoard Notices;
    store::SqliteStore Store;  // the settings store, the registry, and the outside controls' own values
    // What was lost, where the process ends while this stands.
    std::function<void(const std::string& sentence)> LostAtEnd;

private:
    std::string Close();  // what was lost, after telling it on standard error

    Ticket end;
};

}  // namespace orvelle
