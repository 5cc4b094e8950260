// What a page is for, in a sentence at its head.
#pragma once

#include <QString>

class QWidget;

namespace orvelle::deck {

// Puts the words over a page that is laid out.
void AddPageHead(QWidget& page, const QString& words);

}  // namespace orvelle::deck
