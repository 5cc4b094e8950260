#include "tests/qt/shell/RealInput.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <stdexcept>

#undef None
#undef Bool
#undef Status

namespace orvelle::qt {

namespace {

constexpr int KeyCodeOffset = 8;

Window FindChild(Display* display, Window parent, const std::string& name) {
    Window root = 0;
    Window above = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    Window found = 0;
    if (XQueryTree(display, parent, &root, &above, &children, &count) == 0) return 0;
    for (unsigned int index = 0; index < count && found == 0; ++index) {
        char* title = nullptr;
        if (XFetchName(display, children[index], &title) != 0 && title != nullptr && name == title)
            found = children[index];
        if (title != nullptr) XFree(title);
    }
    if (children != nullptr) XFree(children);
    return found;
}

}  // namespace

struct RealInput::Connection {
    Display* Server = XOpenDisplay(nullptr);
    Window Root = 0;
};

RealInput::RealInput() : x(std::make_unique<Connection>()) {
    if (x->Server == nullptr) throw std::runtime_error("no X server");
    x->Root = DefaultRootWindow(x->Server);
}

RealInput::~RealInput() { XCloseDisplay(x->Server); }

void RealInput::MoveTo(QPoint place) {
    XTestFakeMotionEvent(x->Server, -1, place.x(), place.y(), 0);
    XSync(x->Server, 0);
}

void RealInput::Press(int button) {
    XTestFakeButtonEvent(x->Server, static_cast<unsigned>(button), 1, 0);
    XSync(x->Server, 0);
}

void RealInput::Release(int button) {
    XTestFakeButtonEvent(x->Server, static_cast<unsigned>(button), 0, 0);
    XSync(x->Server, 0);
}

void RealInput::Click(QPoint place, int button) {
    MoveTo(place);
    Press(button);
    Release(button);
}

void RealInput::KeyDown(int linuxKey) {
    XTestFakeKeyEvent(x->Server, static_cast<unsigned>(linuxKey + KeyCodeOffset), 1, 0);
    XSync(x->Server, 0);
}

void RealInput::KeyUp(int linuxKey) {
    XTestFakeKeyEvent(x->Server, static_cast<unsigned>(linuxKey + KeyCodeOffset), 0, 0);
    XSync(x->Server, 0);
}

QPoint RealInput::MiddleOf(const QWidget& widget) {
    int left = 0;
    int top = 0;
    Window child = 0;
    XTranslateCoordinates(x->Server, widget.window()->winId(), x->Root, 0, 0, &left, &top, &child);
    return QPoint(left, top) + widget.mapTo(widget.window(), widget.rect().center());
}

bool RealInput::PointsAt(const QWidget& widget) {
    Window window = x->Root;
    Window root = 0;
    Window child = 0;
    int rootX = 0;
    int rootY = 0;
    int left = 0;
    int top = 0;
    unsigned int buttons = 0;
    while (XQueryPointer(x->Server, window, &root, &child, &rootX, &rootY, &left, &top, &buttons) != 0 && child != 0)
        window = child;
    return window == widget.winId();
}

std::vector<std::string> RealInput::WindowState(const QWidget& widget) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(x->Server, widget.winId(), XInternAtom(x->Server, "_NET_WM_STATE", 0), 0, 32, 0, XA_ATOM, &type,
                       &format, &count, &left, &data);
    std::vector<std::string> names;
    for (unsigned long index = 0; index < count; ++index) {
        char* name = XGetAtomName(x->Server, reinterpret_cast<Atom*>(data)[index]);
        names.emplace_back(name);
        XFree(name);
    }
    if (data != nullptr) XFree(data);
    return names;
}

bool RealInput::HasFocus(const QWidget& widget) {
    Window focused = 0;
    int revert = 0;
    XGetInputFocus(x->Server, &focused, &revert);
    return focused == widget.winId();
}

bool RealInput::HasTray() {
    return XGetSelectionOwner(x->Server, XInternAtom(x->Server, "_NET_SYSTEM_TRAY_S0", 0)) != 0;
}

bool RealInput::SendDoorMessage(const std::string& windowName, long number, long wParam, long lParam) {
    const Window window = FindChild(x->Server, x->Root, windowName);
    if (window == 0) return false;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(x->Server, "ORVELLECP_MESSAGE", 0);
    event.xclient.format = 32;
    event.xclient.data.l[0] = number;
    event.xclient.data.l[1] = wParam;
    event.xclient.data.l[2] = lParam;
    XSendEvent(x->Server, window, 0, NoEventMask, &event);
    XSync(x->Server, 0);
    return true;
}

}  // namespace orvelle::qt
