// The shell's notification area: one icon with a tip, whose mouse messages come to a window.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/controls/Picture.h"

namespace orvelle {

class Control;

enum NotifyIconCommand : Long { NotifyIconAdd = 0, NotifyIconModify = 1, NotifyIconDelete = 2 };
enum NotifyIconFlag : Long { NotifyIconMessage = 1, NotifyIconPicture = 2, NotifyIconTip = 4 };

// What the mouse did over the icon. The record's message comes to its window with the icon's id and one of these.
enum NotifyIconMouse : Long {
    MouseMoved = 512,
    LeftDown = 513,
    LeftUp = 514,
    LeftDoubleClick = 515,
    RightDown = 516,
    RightUp = 517,
    RightDoubleClick = 518,
};

// The shell's record; only the fields that its flags mark are valid.
struct NotifyIconData {
    Long Size = 88;
    Control* Window = nullptr;
    Long Id = 0;
    Long Flags = 0;
    Long CallbackMessage = 0;
    Picture Icon;
    std::string Tip;  // at most 64 characters, with its closing zero character where there is room
};

class NotificationArea {
public:
    virtual ~NotificationArea() = default;

    // Not checked by the caller.
    virtual void Shell_NotifyIconA(Long command, const NotifyIconData& data) = 0;
};

}  // namespace orvelle
