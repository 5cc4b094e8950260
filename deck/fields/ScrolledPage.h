// A page of a window: on a screen too small for it, or with letters too large, it is scrolled, never clipped.
#pragma once

#include <QString>

class QTabWidget;
class QWidget;

namespace orvelle::deck {

// The tabs own the page from now on.
void AddScrolledPage(QTabWidget& tabs, QWidget* page, const QString& title);

}  // namespace orvelle::deck
