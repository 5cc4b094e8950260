// Text operations as the panel's settings and names need them. Texts are 8-bit characters; only ASCII has case.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

std::string UpperCase(std::string text);
std::string LowerCase(std::string text);
// Without leading and trailing blanks (code 32 alone).
std::string Trimmed(const std::string& text);
// Without any occurrence of `part`, found from the left.
std::string Without(std::string text, const std::string& part);
// The names that a line feed ends; what follows the last line feed is dropped.
std::vector<std::string> Lines(const std::string& text);
// The number that the text begins with, behind leading blanks; 0 where it begins with none.
double LeadingNumber(const std::string& text);
// The shortest decimal, without an exponent, that reads back as the same single-precision value.
std::string NumberText(float value);

}  // namespace orvelle
