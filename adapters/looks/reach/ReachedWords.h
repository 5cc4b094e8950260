// Words on the screen that nobody can change, as assistive programs read them: whole, letter by letter, without a
// selection.
#pragma once

#include "adapters/looks/reach/ReachedWidget.h"

namespace orvelle {

class ReachedWords : public ReachedWidget, public QAccessibleTextInterface {
public:
    using ReachedWidget::ReachedWidget;
    using ReachedWidget::text;

    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override { return Words().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(Words().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override;

protected:
    virtual QString Words() const = 0;
};

}  // namespace orvelle
