#include "adapters/x11/TopLevelWindows.h"

#include <span>
#include <string_view>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

// ICCCM: the hints begin with a set of flags, of which the second says that the third number is the state at first.
constexpr std::uint32_t StateHint = 2;
constexpr std::size_t HintNumbers = 9;
constexpr std::uint32_t NormalState = 1;
constexpr std::uint32_t IconicState = 3;
// EWMH: a request from a pager, which is obeyed always.
constexpr std::uint32_t FromPager = 2;
constexpr std::uint32_t LongestProperty = 4096;

auto AskedFor(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
    const auto question =
        xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, LongestProperty);
    return OwnReply(xcb_get_property_reply(connection, question, nullptr));
}

// The numbers that an answer holds, which lives longer; none where there is no answer or it holds something else.
std::span<const std::uint32_t> NumbersIn(const xcb_get_property_reply_t* reply) {
    if (reply == nullptr || reply->format != 32) return {};
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(reply)), reply->value_len};
}

}  // namespace

TopLevelWindows::TopLevelWindows(const std::string& display) {
    int screenNumber = 0;
    connection.reset(xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber));
    if (!IsConnected()) return;
    FindRoot(screenNumber);
    FindAtoms();
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.get(), root, XCB_CW_EVENT_MASK, &events);
}

void TopLevelWindows::FindRoot(int screenNumber) {
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber) xcb_screen_next(&screen);
    root = screen.data->root;
}

void TopLevelWindows::FindAtoms() {
    constexpr std::string_view NamesOfAtoms[Names] = {"_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST", "_NET_WM_PID",
                                                      "_NET_WM_USER_TIME",  "WM_STATE",         "WM_CHANGE_STATE"};
    xcb_intern_atom_cookie_t questions[Names];
    for (int name = 0; name < Names; ++name)
        questions[name] = xcb_intern_atom(connection.get(), 0, static_cast<std::uint16_t>(NamesOfAtoms[name].size()),
                                          NamesOfAtoms[name].data());
    for (int name = 0; name < Names; ++name)
        if (const auto reply = OwnReply(xcb_intern_atom_reply(connection.get(), questions[name], nullptr)))
            atoms[name] = reply->atom;
}

std::optional<TopLevelWindows::Change> TopLevelWindows::Next() {
    while (const auto event = OwnReply(xcb_poll_for_event(connection.get()))) {
        switch (event->response_type & 0x7F) {
            case XCB_CREATE_NOTIFY: {
                const auto& created = *reinterpret_cast<const xcb_create_notify_event_t*>(event.get());
                if (created.parent == root && !created.override_redirect)
                    return Change{Change::Created, created.window};
                break;
            }
            case XCB_DESTROY_NOTIFY:
                return Change{Change::Destroyed,
                              reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window};
            case XCB_PROPERTY_NOTIFY: {
                const auto& altered = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
                if (altered.window != root) return Change{Change::Altered, altered.window};
                if (altered.atom == atoms[ClientList]) return Change{Change::List, XCB_NONE};
                if (altered.atom == atoms[ActiveWindow]) return Change{Change::Focus, XCB_NONE};
                break;
            }
            default:
                break;
        }
    }
    xcb_flush(connection.get());
    return std::nullopt;
}

TopLevelWindows::State TopLevelWindows::StateOf(xcb_window_t window) {
    const std::uint32_t state = First(window, atoms[StateName]);
    return state == NormalState ? State::Normal : state == IconicState ? State::Icon : State::NotShown;
}

void TopLevelWindows::Observe(xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection.get(), window, XCB_CW_EVENT_MASK, &events);
}

void TopLevelWindows::AskToBeginAsIcon(xcb_window_t window) {
    std::vector<std::uint32_t> hints = Property(window, XCB_ATOM_WM_HINTS);
    hints.resize(HintNumbers);
    if ((hints[0] & StateHint) && hints[2] == IconicState) return;
    hints[0] |= StateHint;
    hints[2] = IconicState;
    SetProperty(window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
    SetProperty(window, atoms[UserTime], XCB_ATOM_CARDINAL, {0});
}

void TopLevelWindows::AskToBecomeIcon(xcb_window_t window) { TellManager(window, atoms[ChangeState], IconicState); }

void TopLevelWindows::AskForFocus(xcb_window_t window) { TellManager(window, atoms[ActiveWindow], FromPager); }

std::vector<std::uint32_t> TopLevelWindows::Property(xcb_window_t window, xcb_atom_t property) {
    const auto answer = AskedFor(connection.get(), window, property);
    const auto numbers = NumbersIn(answer.get());
    return {numbers.begin(), numbers.end()};
}

std::uint32_t TopLevelWindows::First(xcb_window_t window, xcb_atom_t property) {
    const auto answer = AskedFor(connection.get(), window, property);
    const auto numbers = NumbersIn(answer.get());
    return numbers.empty() ? 0 : numbers.front();
}

void TopLevelWindows::SetProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                  const std::vector<std::uint32_t>& value) {
    xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, property, type, 32,
                        static_cast<std::uint32_t>(value.size()), value.data());
}

void TopLevelWindows::TellManager(xcb_window_t window, xcb_atom_t message, std::uint32_t first) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    event.data.data32[0] = first;
    xcb_send_event(connection.get(), 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
}

}  // namespace orvelle
