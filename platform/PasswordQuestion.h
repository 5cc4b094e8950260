// Why a voice server's password is asked for, from the room at the server to the window that asks.
#pragma once

namespace orvelle {

enum class PasswordQuestion {
    First,       // none is known
    AfterWrong,  // the server does not take the one that it was given
};

}  // namespace orvelle
