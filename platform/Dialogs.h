// The two modal questions of the panel: the common open-file dialog and the message box with one button.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

class FileDialog {
public:
    virtual ~FileDialog() = default;

    virtual void DialogTitle(const std::string& title) = 0;
    virtual void Flags(Long flags) = 0;  // 4096 the file must exist, 4 no read-only box
    virtual void FileName(const std::string& name) = 0;
    // The file picked; after a cancel the name that was put in.
    virtual std::string FileName() = 0;
    // Returns when the dialog is closed; the loop is served meanwhile.
    virtual void ShowOpen() = 0;
};

class MessageBox {
public:
    virtual ~MessageBox() = default;

    // Returns when the user closed it; the loop is served meanwhile.
    virtual void MsgBox(const std::string& text) = 0;
};

}  // namespace orvelle
