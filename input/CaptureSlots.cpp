#include "panel/CaptureSlots.h"

namespace orvelle {

const char* RemoteSlot::Prompt() const {
    switch (Takes) {
        case Kind::Key:
            return "<Press a key on FS PC>";
        case Kind::KeySequence:
            return "<Press a key sequence on FS PC keyboard>";
        default:
            return "<Press a button on FS PC joystick>";
    }
}

const char* RemoteSlot::EmptyText() const {
    return Takes == Kind::Button || Takes == Kind::WholeButton ? "<No Button>" : "<No Hotkey>";
}

const char* RemoteSlot::ClearedText() const {
    switch (Takes) {
        case Kind::Key:
            return "<Not Hotkey>";
        case Kind::KeySequence:
            return "<No HotKey>";
        case Kind::Button:
            return "<Not Button>";
        default:
            return "<No Button>";
    }
}

std::string RemoteSlot::Shown(const std::string& text) const {
    const std::size_t stop = text.find('.');
    return Takes == Kind::Button && stop != std::string::npos ? text.substr(stop + 1) : text;
}

void RemoteSlot::ShowField() const { Display.Text = Field.empty() ? EmptyText() : Shown(Field); }

}  // namespace orvelle
