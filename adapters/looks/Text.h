// Texts of controls are bytes; the shell shows them as UTF-8, or as Latin-1 where they are no valid UTF-8 (a text that
// came from an old computer of the set-up). What the user types goes back as UTF-8.
#pragma once

#include <QString>
#include <string>

namespace orvelle {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// A tool tip that shows `text` to the letter, whatever marks are in it; "" for none.
QString PlainTip(const QString& text);

}  // namespace orvelle
