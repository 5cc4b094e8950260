// A status bar of text panels, numbered from 1, each with a hover text. A panel that is not there is run-time error 9.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/controls/Control.h"

namespace orvelle {

class StatusBar : public Control {
public:
    struct Panel {
        std::string Text;
        std::string ToolTipText;
    };

    StatusBar(Form& form, std::string name, Control* container, std::initializer_list<Panel> designPanels)
        : Control(form, std::move(name), container), panels(designPanels) {}

    const std::vector<Panel>& Panels() const { return panels; }
    const std::string& PanelText(Long number) const { return panels.at(Index(number)).Text; }
    void SetPanelText(Long number, std::string text) {
        std::string& held = panels.at(Index(number)).Text;
        if (held == text) return;
        held = std::move(text);
        Changed(ControlProperty::Panels);
    }

private:
    std::size_t Index(Long number) const {
        if (number < 1 || number > static_cast<Long>(panels.size()))
            throw RuntimeError(RuntimeError::SubscriptOutOfRange);
        return static_cast<std::size_t>(number) - 1;
    }

    std::vector<Panel> panels;
};

}  // namespace orvelle
