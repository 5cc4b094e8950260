#include "tests/reach/Reached.h"

#include <chrono>
#include <memory>
#include <thread>
#include <utility>

namespace orvelle {

namespace {

constexpr std::chrono::seconds Patience{60};
constexpr std::chrono::milliseconds Pause{20};

std::string Taken(char* text) {
    const std::unique_ptr<char, decltype(&g_free)> owned(text, g_free);
    return text == nullptr ? "" : text;
}

// Asked for by one call, used by the next, and given back.
template <typename Interface>
std::unique_ptr<Interface, decltype(&g_object_unref)> Owned(Interface* interface) {
    return {interface, g_object_unref};
}

}  // namespace

Reached::Reached(const Reached& other) : object(other.object) {
    if (object != nullptr) g_object_ref(object);
}

Reached::~Reached() {
    if (object != nullptr) g_object_unref(object);
}

std::string Reached::Role() const { return Taken(atspi_accessible_get_role_name(object, nullptr)); }

std::string Reached::Name() const { return Taken(atspi_accessible_get_name(object, nullptr)); }

std::string Reached::Description() const { return Taken(atspi_accessible_get_description(object, nullptr)); }

bool Reached::Is(AtspiStateType state) const {
    const auto states = Owned(atspi_accessible_get_state_set(object));
    return states && atspi_state_set_contains(states.get(), state);
}

bool Reached::IsLabelled() const {
    GArray* relations = atspi_accessible_get_relation_set(object, nullptr);
    if (relations == nullptr) return false;
    bool found = false;
    for (guint index = 0; index < relations->len; ++index) {
        const auto relation = Owned(g_array_index(relations, AtspiRelation*, index));
        found |= atspi_relation_get_relation_type(relation.get()) == ATSPI_RELATION_LABELLED_BY;
    }
    g_array_free(relations, TRUE);
    return found;
}

std::vector<std::string> Reached::Actions() const {
    const auto action = Owned(atspi_accessible_get_action_iface(object));
    std::vector<std::string> names;
    if (!action) return names;
    const int count = atspi_action_get_n_actions(action.get(), nullptr);
    for (int index = 0; index < count; ++index)
        names.push_back(Taken(atspi_action_get_action_name(action.get(), index, nullptr)));
    return names;
}

std::optional<std::string> Reached::Text() const {
    const auto text = Owned(atspi_accessible_get_text_iface(object));
    if (!text) return std::nullopt;
    return Taken(atspi_text_get_text(text.get(), 0, -1, nullptr));
}

std::optional<double> Reached::Value() const {
    const auto value = Owned(atspi_accessible_get_value_iface(object));
    if (!value) return std::nullopt;
    return atspi_value_get_current_value(value.get(), nullptr);
}

std::vector<Reached> Reached::Children() const {
    std::vector<Reached> children;
    const int count = atspi_accessible_get_child_count(object, nullptr);
    for (int index = 0; index < count; ++index)
        if (Reached child(atspi_accessible_get_child_at_index(object, index, nullptr)); child)
            children.push_back(child);
    return children;
}

bool Reached::Do(const std::string& wanted) const {
    const std::vector<std::string> names = Actions();
    const auto action = Owned(atspi_accessible_get_action_iface(object));
    for (std::size_t index = 0; index < names.size(); ++index)
        if (names[index] == wanted)
            return atspi_action_do_action(action.get(), static_cast<int>(index), nullptr) != FALSE;
    return false;
}

bool Reached::SetValue(double value) const {
    const auto holder = Owned(atspi_accessible_get_value_iface(object));
    return holder && atspi_value_set_current_value(holder.get(), value, nullptr);
}

bool Reached::SetText(const std::string& text) const {
    const auto holder = Owned(atspi_accessible_get_editable_text_iface(object));
    return holder && atspi_editable_text_set_text_contents(holder.get(), text.c_str(), nullptr);
}

Reached FindBelow(const Reached& top, const std::function<bool(const Reached&)>& isIt) {
    if (!top || isIt(top)) return top;
    // The cells of a table are no controls, and there are many.
    if (top.Role() == "table") return Reached();
    for (const Reached& child : top.Children())
        if (Reached found = FindBelow(child, isIt); found) return found;
    return Reached();
}

Reached FindBelow(const Reached& top, const std::string& role, const std::string& name) {
    return FindBelow(top, [&](const Reached& one) { return one.Role() == role && one.Name() == name; });
}

bool ComesTrue(const std::function<bool()>& isTrue) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!isTrue()) {
        if (std::chrono::steady_clock::now() > end) return false;
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
        std::this_thread::sleep_for(Pause);
    }
    return true;
}

}  // namespace orvelle
