// The panel's two modal questions, over the window that `parentOf` names while it shows, else on their own. Events of
// the program are served while one is open.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "platform/Dialogs.h"

namespace orvelle::qt {

// The window that a dialog belongs to; null for none.
using DialogParent = std::function<QWidget*()>;
// That one while it shows: a dialog over a hidden window would be hidden with it.
QWidget* ShownParent(const DialogParent& parentOf);

class QtFileDialog : public FileDialog {
public:
    explicit QtFileDialog(DialogParent dialogParent) : parentOf(std::move(dialogParent)) {}

    void DialogTitle(const std::string& newTitle) override { title = newTitle; }
    void Flags(Long newFlags) override { flags = newFlags; }
    void FileName(const std::string& name) override { fileName = name; }
    std::string FileName() override { return fileName; }
    void ShowOpen() override;

private:
    const DialogParent parentOf;
    std::string title;
    Long flags = 0;
    std::string fileName;
};

class QtMessageBox : public MessageBox {
public:
    explicit QtMessageBox(DialogParent dialogParent) : parentOf(std::move(dialogParent)) {}

    void MsgBox(const std::string& text) override;
    // Goes by itself when the time is over.
    void MsgBox(const std::string& text, Long milliseconds);

private:
    const DialogParent parentOf;
};

}  // namespace orvelle::qt
