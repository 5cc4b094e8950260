#include "panel/SysTray.h"

#include <utility>

namespace orvelle {

namespace {

constexpr std::size_t TipField = 64;
constexpr const char* DefaultTip = "Notification area icon";

std::string TipText(const std::string& tip) { return (tip + '\0').substr(0, TipField); }

}  // namespace

cSysTray::cSysTray(Form& form, std::string name, Windows& windowSystem, NotificationArea& notificationArea,
                   mSysTray& module, Mode userMode)
    : Control(form, std::move(name)),
      windows(windowSystem),
      shell(notificationArea),
      moduleState(module),
      mode(userMode) {}

cSysTray::~cSysTray() {
    if (inTray) InTray(false);
}

void cSysTray::InitProperties() {
    inTray = false;
    trayTip = DefaultTip;
    trayIcon = Picture;
}

void cSysTray::ReadProperties(const PropertyBag& bag) {
    InTray(bag.InTray);
    TrayIcon(bag.TrayIcon.value_or(Picture()));
    TrayTip(bag.TrayTip.value_or(std::string(DefaultTip) + '\0'));
}

cSysTray::PropertyBag cSysTray::WriteProperties() const { return {inTray, trayIcon, trayTip}; }

void cSysTray::Resize() {
    Width = SizeInTwips;
    Height = SizeInTwips;
}

void cSysTray::Paint() { windows.DrawEdge(*this, RaisedOuterEdge, SoftEdgeRectangle); }

void cSysTray::TrayIcon(const orvelle::Picture& picture) {
    if (picture.Type != orvelle::Picture::Icon) return;
    if (added) {
        NotifyIconData record = Record(NotifyIconPicture);
        record.Icon = picture;
        shell.Shell_NotifyIconA(NotifyIconModify, record);
    }
    trayIcon = picture;
    Picture = picture;
}

void cSysTray::TrayTip(const std::string& tip) {
    if (added) {
        NotifyIconData record = Record(NotifyIconTip);
        record.Tip = TipText(tip);
        shell.Shell_NotifyIconA(NotifyIconModify, record);
    }
    trayTip = tip;
}

void cSysTray::InTray(bool value) {
    if (value == inTray) return;
    if (value && mode == Mode::Run) {
        moduleState.OldWindowProc =
            windows.SetWindowLongA(*this, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(&TrayProcedure));
        windows.SetWindowLongA(*this, WindowUserData, reinterpret_cast<std::intptr_t>(this));
        AddIcon();
        added = true;
    }
    if (!value && added) {
        DeleteIcon();
        windows.SetWindowLongA(*this, WindowProcedureIndex, moduleState.OldWindowProc);
        added = false;
    }
    inTray = value;
}

void cSysTray::AddIcon() {
    NotifyIconData record = Record(0);
    if (trayIcon.Type != orvelle::Picture::None) {
        record.Icon = trayIcon;
        record.Flags |= NotifyIconPicture;
    }
    if (!trayTip.empty()) {
        record.Tip = TipText(trayTip);
        record.Flags |= NotifyIconTip;
    }
    record.Flags |= NotifyIconMessage;
    record.CallbackMessage = CallbackMessage;
    shell.Shell_NotifyIconA(NotifyIconAdd, record);
}

void cSysTray::DeleteIcon() { shell.Shell_NotifyIconA(NotifyIconDelete, Record(0)); }

NotifyIconData cSysTray::Record(Long flags) {
    NotifyIconData record;
    record.Window = this;
    record.Id = iconId;
    record.Flags = flags;
    return record;
}

Long cSysTray::TrayProcedure(Control& window, Long message, Long wParam, Long lParam) {
    auto& hooked = static_cast<cSysTray&>(window);
    if (message == CallbackMessage) {
        auto* const tray = reinterpret_cast<cSysTray*>(hooked.windows.GetWindowLongA(window, WindowUserData));
        tray->Dispatch(wParam, lParam);
    }
    return hooked.windows.CallWindowProcA(hooked.moduleState.OldWindowProc, window, message, wParam, lParam);
}

void cSysTray::Dispatch(Long id, Long mouseMessage) {
    Integer left = 1;
    Integer right = 2;
    switch (mouseMessage) {
        case MouseMoved:
            MouseMove(id);
            break;
        case LeftDown:
            MouseDown(left, id);
            break;
        case LeftUp:
            MouseUp(left, id);
            break;
        case LeftDoubleClick:
            MouseDblClick(left, id);
            break;
        case RightDown:
            MouseDown(right, id);
            break;
        case RightUp:
            MouseUp(right, id);
            break;
        case RightDoubleClick:
            MouseDblClick(right, id);
            break;
        default:
            break;
    }
}

}  // namespace orvelle
