// The search for a voice program's file. The dialog may change the working directory, which is set back.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

constexpr Long DirectoryBuffer = 4096;
constexpr Long FileMustExist = 4096;
constexpr Long HideReadOnly = 4;

}  // namespace

void FrmOrvelle::SearchProgram(const std::string& title, TextBox& path) {
    const std::string directory = Processes.GetCurrentDirectoryA(DirectoryBuffer);
    Dialog.DialogTitle(title);
    Dialog.Flags(FileMustExist + HideReadOnly);
    Dialog.FileName(path.Text);
    {
        const HandlerDepth::Suspension suspension(handlers);
        Dialog.ShowOpen();
    }
    const std::string name = Dialog.FileName();
    if (!name.empty()) path.Text = name;
    Processes.SetCurrentDirectoryA(directory);
}

}  // namespace orvelle
