// Addresses of directories as users type them.
#pragma once

#include <string>

namespace orvelle::directory {

struct AddressText {
    std::string Address;   // "https://host/path", "" for none
    std::string Sentence;  // why it is none, "" for one
};

// Blanks around it are left out, and "https://" is put before one that names no scheme.
AddressText ReadAddress(const std::string& text);

}  // namespace orvelle::directory
