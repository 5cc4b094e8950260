// A window: the list of its controls, its place in twips (1/15 pixel at scale 1) and its state. Showing, moving or
// sizing it from the program raises no event; the user's acts do.
#pragma once

#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/Observers.h"
#include "platform/controls/Control.h"

namespace orvelle {

class Menu;

constexpr double TwipsPerPixel = 15;

class Form : public Control {
public:
    enum State : Long { Normal = 0, Minimised = 1, Maximised = 2 };
    enum UnloadMode : Long { ControlMenu = 0, Code = 1 };

    Form(std::string formName, std::string caption);

    // The observer hears of what changes for as long as the ticket is kept.
    [[nodiscard]] Ticket Attach(ControlObserver& observer);
    // In the order in which they are declared; the form itself is not among them.
    const std::vector<Control*>& Controls() const { return controls; }
    // Null where there is none of that name.
    Control* Find(const std::string& controlName) const;

    // Loads the form if it is not loaded, then makes it visible.
    void Show();
    void Hide() { Visible = false; }
    bool IsLoaded() const { return isLoaded; }
    // Query-unload with `mode`, and the unload if nobody cancelled it. The window goes with the form: Visible becomes
    // False when the form is no longer loaded, which is no Hide.
    void Unload(Long mode = Code);
    void PopupMenu(Menu& menu);
    // The menu that pops up at the mouse; null but while ControlProperty::PopupMenu is told.
    Menu* PoppedMenu() const { return poppedMenu; }

    void UserMove(double left, double top);
    void UserResize() { Resize(); }
    void UserState(Long state);

    Property<std::string> Caption;
    Property<double> Left{*this, ControlProperty::Left, 0};
    Property<double> Top{*this, ControlProperty::Top, 0};
    Property<double> Width{*this, ControlProperty::Width, 0};
    Property<double> Height{*this, ControlProperty::Height, 0};
    Property<Long> WindowState{*this, ControlProperty::WindowState, Normal};

    Event<> Load;
    Event<> Resize;
    Event<Long&, Long> QueryUnload;  // cancel, which keeps the form where it is set, and the mode
    Event<> Unloading;
    Event<> Terminate;  // the form is gone

protected:
    void TellObservers(ControlProperty property) override { Tell(*this, property); }

private:
    friend class Control;
    void Register(Control& control) { controls.push_back(&control); }
    void Tell(Control& control, ControlProperty property) { observers.Tell(control, property); }

    std::vector<Control*> controls;
    Observers<Control&, ControlProperty> observers;
    bool isLoaded = false;
    Menu* poppedMenu = nullptr;
};

}  // namespace orvelle
