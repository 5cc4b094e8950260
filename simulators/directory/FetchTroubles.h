// Why a directory could not be fetched from its address, as the program curl tells it, in a sentence for the user.
#pragma once

#include <string>

namespace orvelle::directory {

// How a run of curl ended.
struct FetchEnd {
    int Exit = 0;         // its exit status; -1 where a signal ended it
    int Signal = 0;       // 0 for none
    int Answer = 0;       // the server's, as 404; 0 for none
    std::string Message;  // curl's own words
};

// "" where the server has answered as wished: with the directory, or that it has not changed.
std::string FetchTrouble(const FetchEnd& end);

}  // namespace orvelle::directory
