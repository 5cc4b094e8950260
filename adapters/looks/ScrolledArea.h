// What a page of a window lies in: on a screen too small for the page, or with letters too large, it is scrolled, never
// clipped. What gets the focus by the keyboard or by the program comes into view; under a mouse nothing moves.
#pragma once

#include <QScrollArea>

namespace orvelle {

class ScrolledArea : public QScrollArea {
    Q_OBJECT

public:
    // Owns the page from now on. The page fills the area's width up to its own greatest one.
    explicit ScrolledArea(QWidget* page, QWidget* parent = nullptr);

private:
    void BringIntoView(QWidget* focused);
};

}  // namespace orvelle
