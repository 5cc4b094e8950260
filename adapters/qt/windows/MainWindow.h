// The panel's window: the tree of categories on the left, beside it the page whose frame is visible. A page is made
// when it is first seen. Built before the form loads: it gives the frame Panels(0) the place and size (twips) by which
// the load then sizes the window, so that every page has room as far as the screen has. The user may make it smaller:
// then the pages give way, and scroll.
#pragma once

#include <array>
#include <memory>

#include "adapters/qt/windows/FormWindow.h"
#include "adapters/qt/windows/NeededFields.h"
#include "adapters/qt/windows/PageArea.h"
#include "adapters/qt/windows/Pages.h"

class QStackedWidget;
class QTreeWidget;

namespace orvelle::qt {

class MainWindow : public FormWindow {
public:
    explicit MainWindow(Form& panelForm);

    // Makes the page that the control sits on where it is not there yet.
    QWidget* WidgetOf(const Control& control) override;
    // The page of that panel, 0 to 12, made now if need be.
    QWidget& Page(int panel);
    // Of the tree at the left.
    int ListWidth() const;
    const Binder& Bindings() const { return binder; }

    void ControlChanged(Control& control, ControlProperty property) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void FollowFont();
    void FollowPalette();
    int PanelOf(const Control& frame) const;
    PageArea& AreaOf(int panel);
    void TellSize();

    NeededFields neededFields{form, [this](const Control& control) { return binder.WidgetOf(control); }};
    QStackedWidget* pages = nullptr;
    QTreeWidget* tree = nullptr;
    QWidget* side = nullptr;
    std::array<Control*, PageCount> frames{};
    std::array<PageArea*, PageCount> made{};
};

}  // namespace orvelle::qt
