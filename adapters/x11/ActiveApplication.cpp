#include "adapters/x11/ActiveApplication.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

constexpr std::uint32_t LongestList = 4096;
// Windows in windows, at most; a chain of parents may change while it is asked for.
constexpr int DeepestWindow = 32;

}  // namespace

ActiveApplication::ActiveApplication(EventLoop& eventLoop, SimulatorSide& simulatorSide,
                                     std::vector<std::string> simulators, ExecutableOf executableOf,
                                     const std::string& display)
    : loop(eventLoop),
      simulator(simulatorSide),
      simulators(std::move(simulators)),
      executableOf(std::move(executableOf)),
      connection(xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber)),
      owners(connection.get()) {
    if (xcb_connection_has_error(connection.get())) {
        Tell(true);
        return;
    }
    Begin();
    served = loop.WhenReadable(xcb_get_file_descriptor(connection.get()), [this] { Serve(); });
    Look();
}

void ActiveApplication::Begin() {
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber) xcb_screen_next(&screen);
    root = screen.data->root;
    constexpr std::string_view NamesOfAtoms[Names] = {"_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST"};
    for (int name = 0; name < Names; ++name) {
        const auto question = xcb_intern_atom(
            connection.get(), 0, static_cast<std::uint16_t>(NamesOfAtoms[name].size()), NamesOfAtoms[name].data());
        if (const auto reply = OwnReply(xcb_intern_atom_reply(connection.get(), question, nullptr)))
            atoms[name] = reply->atom;
    }
    const std::uint32_t events =
        XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_change_window_attributes(connection.get(), root, XCB_CW_EVENT_MASK, &events);
    for (const xcb_window_t window : ChildrenOfRoot()) ObserveFocus(window);
}

void ActiveApplication::Serve() {
    while (const auto event = OwnReply(xcb_poll_for_event(connection.get()))) Take(*event);
    xcb_flush(connection.get());
    if (!xcb_connection_has_error(connection.get())) return;
    served.End();
    looking.End();
    Tell(true);
}

// Many events of one change give one look.
void ActiveApplication::Take(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7F;
    if (type == XCB_PROPERTY_NOTIFY) {
        const xcb_atom_t changed = reinterpret_cast<const xcb_property_notify_event_t&>(event).atom;
        if (std::ranges::find(atoms, changed) == std::end(atoms)) return;
    } else if (type == XCB_CREATE_NOTIFY) {
        return ObserveFocus(reinterpret_cast<const xcb_create_notify_event_t&>(event).window);
    } else if (type != XCB_MAP_NOTIFY && type != XCB_UNMAP_NOTIFY && type != XCB_DESTROY_NOTIFY &&
               type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT) {
        return;
    }
    looking = loop.After(0, [this] { Look(); });
}

void ActiveApplication::Look() {
    const std::vector<xcb_window_t> windows = Windows();
    std::erase_if(known, [&](const auto& each) { return std::ranges::find(windows, each.first) == windows.end(); });
    const bool isThere =
        std::ranges::any_of(windows, [this](xcb_window_t window) { return !SimulatorOf(window).empty(); });
    std::string active;
    for (const xcb_window_t window : isThere ? Focused() : std::vector<xcb_window_t>())
        if (active.empty()) active = SimulatorOf(window);
    Tell(!isThere || !active.empty());
    if (!active.empty() && std::exchange(lastSimulator, active) != active) Changed();
    Serve();  // what came with the answers is inside the connection, where no descriptor tells of it
}

void ActiveApplication::Tell(bool isActive) {
    if (simulator.SimulatorActive() != isActive) simulator.SetSimulatorActive(isActive);
}

void ActiveApplication::ObserveFocus(xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_change_window_attributes(connection.get(), window, XCB_CW_EVENT_MASK, &events);
}

std::vector<xcb_window_t> ActiveApplication::Windows() {
    const auto managed = Property(ClientList);
    return managed ? *managed : ChildrenOfRoot();
}

std::vector<xcb_window_t> ActiveApplication::ChildrenOfRoot() {
    const auto tree = OwnReply(xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), root), nullptr));
    if (!tree) return {};
    const xcb_window_t* const first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

// The window that is worked with, and those that it is inside of.
std::vector<xcb_window_t> ActiveApplication::Focused() {
    if (auto active = Property(ActiveWindow)) return *active;
    const auto focus =
        OwnReply(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
    std::vector<xcb_window_t> windows;
    xcb_window_t window = focus ? focus->focus : static_cast<xcb_window_t>(XCB_NONE);
    while (window > XCB_INPUT_FOCUS_POINTER_ROOT && window != root && windows.size() < DeepestWindow) {
        windows.push_back(window);
        const auto tree =
            OwnReply(xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), window), nullptr));
        window = tree ? tree->parent : static_cast<xcb_window_t>(XCB_NONE);
    }
    return windows;
}

std::optional<std::vector<xcb_window_t>> ActiveApplication::Property(Name name) {
    const auto question = xcb_get_property(connection.get(), 0, root, atoms[name], XCB_ATOM_WINDOW, 0, LongestList);
    const auto reply = OwnReply(xcb_get_property_reply(connection.get(), question, nullptr));
    if (!reply || reply->format != 32) return std::nullopt;
    const auto* const first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return std::vector<xcb_window_t>(first, first + reply->value_len);
}

std::string ActiveApplication::SimulatorOf(xcb_window_t window) {
    if (const auto found = known.find(window); found != known.end()) return found->second;
    const auto isNamed = [this](const std::string& name) {
        return std::ranges::find(simulators, name) != simulators.end();
    };
    bool isTold = false;
    for (const pid_t process : owners.ProcessesOf(window)) {
        const std::string executable = executableOf(process);
        if (isNamed(executable)) return known[window] = executable;
        isTold = isTold || !executable.empty();
    }
    if (isTold) return known[window] = "";
    const std::vector<std::string> names = owners.NamesOf(window);
    const auto named = std::ranges::find_if(names, isNamed);
    return named == names.end() ? "" : *named;
}

}  // namespace orvelle
