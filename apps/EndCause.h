// Why a run-time error ended the panel, as far as the panel's state tells. Asked when the error has left its handler
// and everything still stands as it left it.
#pragma once

#include <string>

namespace orvelle {

class FrmOrvelle;

// Sentences for the user; "" if the state tells nothing about the error. For a panel that is loaded.
std::string CauseInPanel(const FrmOrvelle& panel);

}  // namespace orvelle
