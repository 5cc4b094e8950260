// A name is another computer's word: shown in a terminal it must not end a line or a column, or speak to the terminal.
#pragma once

#include <string>

namespace orvelle {

// With blanks in place of control characters.
inline std::string OneLine(std::string text) {
    for (char& character : text)
        if (static_cast<unsigned char>(character) < ' ' || character == '\x7F') character = ' ';
    return text;
}

}  // namespace orvelle
