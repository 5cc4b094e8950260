// Texts of controls are bytes; the shell shows them by the rule of adapters/shared/Utf8.h. What the user types goes
// back as UTF-8.
#pragma once

#include <QString>
#include <string>

namespace orvelle {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// A tool tip that shows `text` to the letter, whatever marks are in it, and wraps it; "" for none.
QString PlainTip(const QString& text);

// What a text with a mnemonic (an ampersand before the letter, two for one that stands) shows.
QString WithoutMnemonic(const QString& text);

}  // namespace orvelle
