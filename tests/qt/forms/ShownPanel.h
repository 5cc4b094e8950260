// A panel without logic in its window, shown, with every page made.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/qt/windows/MainWindow.h"
#include "panel/Controls.h"

namespace orvelle::qt {

class ShownPanel : public testing::Test {
protected:
    ShownPanel() {
        for (int page = 0; page < PageCount; ++page) window.Page(page);
        panel.Show();
        QCoreApplication::processEvents();
    }

    void GoTo(Long page) {
        for (Long other = 0; other < panel.Panels.Count(); ++other) panel.Panels(other).Visible = other == page;
        QCoreApplication::processEvents();
    }

    // The widget of a control, as what it is.
    template <typename Kind>
    Kind& Widget(const Control& control) {
        auto* widget = qobject_cast<Kind*>(window.WidgetOf(control));
        if (widget == nullptr) throw std::runtime_error("no such widget: " + control.Name);
        return *widget;
    }

    // A handler that writes the event down.
    auto Note(std::string event) {
        return [this, event = std::move(event)](auto&&...) { events.push_back(event); };
    }

    PanelControls panel;
    MainWindow window{panel};
    std::vector<std::string> events;
};

}  // namespace orvelle::qt
