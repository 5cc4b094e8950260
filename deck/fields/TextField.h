// A text that the user edits and then applies, by Enter or by leaving the field; Escape goes back to the text that
// holds. What the user is typing is never overwritten.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <functional>
#include <string>

class QAction;

namespace orvelle::deck {

class TextField : public QLineEdit {
public:
    // `apply` runs on the user's doing only.
    explicit TextField(std::function<void(const std::string&)> apply);

    // The text that holds now.
    void Show(const std::string& text);
    // A triangle in the field, whose tool tip says why the user's text was refused; "" takes it away.
    void ShowRefusal(const QString& why);
    // What is being typed; the text that holds stands there again.
    void TakeBack();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Apply();
    void ShowHolding();

    std::function<void(const std::string&)> applyText;
    QString holding;
    QPointer<QAction> mark;
};

}  // namespace orvelle::deck
