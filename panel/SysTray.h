// A small reusable control that puts one icon into the notification area and turns the shell's mouse messages into
// events. It knows nothing of the panel.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Event.h"
#include "platform/NotificationArea.h"
#include "platform/Windows.h"
#include "platform/controls/Control.h"
#include "platform/controls/Picture.h"

namespace orvelle {

// The module's one variable: the window procedure that the tray hook replaced, 0 while there is no hook.
struct mSysTray {
    std::intptr_t OldWindowProc = 0;
};

class cSysTray : public Control {
public:
    // What a designer keeps of an instance. What it does not keep is not in the tray, shows the control's own picture
    // and bears the component's description.
    struct PropertyBag {
        bool InTray = false;
        std::optional<orvelle::Picture> TrayIcon;
        std::optional<std::string> TrayTip;
    };
    enum class Mode { Designer, Run };

    static constexpr Long CallbackMessage = 1125;
    static constexpr double SizeInTwips = 510;

    cSysTray(Form& form, std::string name, Windows& windowSystem, NotificationArea& notificationArea, mSysTray& module,
             Mode userMode);
    ~cSysTray() override;

    void InitProperties();
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    void Resize();
    void Paint();

    const orvelle::Picture& TrayIcon() const { return trayIcon; }
    // Takes an icon; any other picture is ignored.
    void TrayIcon(const orvelle::Picture& picture);
    const std::string& TrayTip() const { return trayTip; }
    void TrayTip(const std::string& tip);
    bool InTray() const { return inTray; }
    void InTray(bool value);

    Property<orvelle::Picture> Picture{*this, ControlProperty::Picture};
    Property<double> Width{*this, ControlProperty::Width, SizeInTwips};
    Property<double> Height{*this, ControlProperty::Height, SizeInTwips};

    Event<Long&> MouseMove;                // id
    Event<Integer&, Long&> MouseDown;      // button: 1 left, 2 right; id
    Event<Integer&, Long&> MouseUp;        // the same
    Event<Integer&, Long&> MouseDblClick;  // the same

private:
    static Long TrayProcedure(Control& window, Long message, Long wParam, Long lParam);

    void AddIcon();
    void DeleteIcon();
    void Dispatch(Long id, Long mouseMessage);
    NotifyIconData Record(Long flags);

    Windows& windows;
    NotificationArea& shell;
    mSysTray& moduleState;
    const Mode mode;
    bool inTray = false;
    bool added = false;
    Long iconId = 0;
    orvelle::Picture trayIcon;
    std::string trayTip;
};

}  // namespace orvelle
