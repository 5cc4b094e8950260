#include "replay/peers/NotificationAreaPeer.h"

#include "platform/controls/Control.h"

namespace orvelle::replay {

void NotificationAreaPeer::Shell_NotifyIconA(Long command, const NotifyIconData& data) {
    const auto marked = [&](NotifyIconFlag flag, const Value& value) {
        return (data.Flags & flag) != 0 ? value : Value::Word("-");
    };
    Call("Shell_NotifyIconA", {command, data.Size, Value::Word(data.Window == nullptr ? "-" : data.Window->Name),
                               data.Id, data.Flags, marked(NotifyIconMessage, data.CallbackMessage),
                               marked(NotifyIconPicture, data.Icon.Name), marked(NotifyIconTip, data.Tip)});
}

}  // namespace orvelle::replay
