#include "adapters/shared/WindowTable.h"

namespace orvelle {

namespace {

Long DefaultProcedure(Control&, Long, Long, Long) { return 0; }

std::intptr_t Number(WindowProcedure procedure) { return reinterpret_cast<std::intptr_t>(procedure); }

}  // namespace

std::intptr_t WindowTable::SetLong(Control& window, Long index, std::intptr_t value) {
    Entry& entry = entries.try_emplace(&window, Entry{Number(DefaultProcedure)}).first->second;
    std::intptr_t& held = index == WindowProcedureIndex ? entry.Procedure : entry.UserData;
    const std::intptr_t before = held;
    held = value;
    return before;
}

std::intptr_t WindowTable::GetLong(Control& window, Long index) const {
    const auto found = entries.find(&window);
    if (found == entries.end()) return index == WindowProcedureIndex ? Number(DefaultProcedure) : 0;
    return index == WindowProcedureIndex ? found->second.Procedure : found->second.UserData;
}

Long WindowTable::Deliver(Control& window, Long message, Long wParam, Long lParam) const {
    return Call(GetLong(window, WindowProcedureIndex), window, message, wParam, lParam);
}

Long WindowTable::Call(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) {
    if (procedure == 0) return 0;
    return reinterpret_cast<WindowProcedure>(procedure)(window, message, wParam, lParam);
}

}  // namespace orvelle
