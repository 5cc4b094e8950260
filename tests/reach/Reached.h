// One thing on the screen as assistive programs see it. Each question goes to the program that shows it, anew.
#pragma once

#include <atspi/atspi.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

class Reached {
public:
    // Takes over the reference; null for nothing.
    explicit Reached(AtspiAccessible* accessible = nullptr) : object(accessible) {}
    Reached(const Reached& other);
    Reached& operator=(const Reached&) = delete;
    ~Reached();

    explicit operator bool() const { return object != nullptr; }
    AtspiAccessible* Object() const { return object; }

    std::string Role() const;
    std::string Name() const;
    std::string Description() const;
    bool Is(AtspiStateType state) const;
    bool IsLabelled() const;
    std::vector<std::string> Actions() const;
    std::optional<std::string> Text() const;
    std::optional<double> Value() const;
    std::vector<Reached> Children() const;

    // False where it has no such thing.
    bool Do(const std::string& action) const;
    bool SetValue(double value) const;
    bool SetText(const std::string& text) const;

private:
    AtspiAccessible* object;
};

// The first below `top`, itself included, for which `isIt`.
Reached FindBelow(const Reached& top, const std::function<bool(const Reached&)>& isIt);
Reached FindBelow(const Reached& top, const std::string& role, const std::string& name);

// Asks until it is true; false when a generous time is up.
bool ComesTrue(const std::function<bool()>& isTrue);

}  // namespace orvelle
