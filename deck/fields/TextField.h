// A text that the user edits and then applies, by Enter or by leaving the field; Escape goes back to the text that
// holds. What the user is typing is never overwritten.
#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

namespace orvelle::deck {

class TextField : public QLineEdit {
public:
    // `apply` runs on the user's doing only.
    explicit TextField(std::function<void(const std::string&)> apply);

    // The text that holds now.
    void Show(const std::string& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Apply();
    void ShowHolding();

    std::function<void(const std::string&)> applyText;
    QString holding;
};

}  // namespace orvelle::deck
