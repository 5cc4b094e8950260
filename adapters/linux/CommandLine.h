// The words of a command line as a voice program's settings hold it. Blanks and tabs part the words, quotes keep what
// they enclose together and fall away; there is no escape character, so that paths with backslashes stay as they are.
//
// A join's line has no quotes, and the channel and the callsign in it come from the network, where names with blanks
// are ordinary. So all words behind "/join1" and "/callsign" are one argument, up to the next word that begins with a
// slash and goes on; the near end of the framework link lets no text through that holds such a word.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux {

struct CommandWord {
    std::string Text;
    std::size_t End;  // where the line goes on behind the word
    bool IsQuoted;    // some part of it
};

std::vector<CommandWord> SplitCommandLine(std::string_view line);

}  // namespace orvelle::linux
