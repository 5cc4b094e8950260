#include "replay/peers/DialogPeer.h"

namespace orvelle::replay {

void DialogPeer::DialogTitle(const std::string& title) { WriteProperty("DialogTitle", title); }

void DialogPeer::Flags(Long flags) { WriteProperty("Flags", flags); }

void DialogPeer::FileName(const std::string& name) {
    WriteProperty("FileName", name);
    fileName = name;
}

std::string DialogPeer::FileName() {
    PrintRead("FileName", fileName);
    return fileName;
}

void DialogPeer::ShowOpen() {
    Call("ShowOpen");
    fileName = Answer("FileName", {}, {fileName}).front().As<std::string>();
}

void MessageBoxPeer::MsgBox(const std::string& text) {
    transcript.Call("MsgBox", "MsgBox(" + Value(text).Printed() + ")");
}

}  // namespace orvelle::replay
