// A message with one thing wrong, and why it isn't taken: the rows of the tables by which the readers are tested.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvelle::mqtt {

struct Change {
    std::string Was;
    std::string Becomes;
};

// The message with the first `change.Was` replaced, which must be in it.
inline std::string Changed(std::string message, const Change& change) {
    const std::size_t place = message.find(change.Was);
    if (place == std::string::npos) {
        ADD_FAILURE() << change.Was << " is not in " << message;
        return message;
    }
    return message.replace(place, change.Was.size(), change.Becomes);
}

// The message as it stands is taken; with any one of the changes it is not.
template <typename Read>
void ExpectRefusals(Read read, const std::string& message, const std::vector<Change>& changes) {
    EXPECT_TRUE(read(message)) << message;
    for (const Change& change : changes) EXPECT_FALSE(read(Changed(message, change))) << Changed(message, change);
}

template <typename Read>
void ExpectTaken(Read read, const std::string& message, const std::vector<Change>& changes) {
    for (const Change& change : changes) EXPECT_TRUE(read(Changed(message, change))) << Changed(message, change);
}

// `count` times `text`, with commas between.
inline std::string List(int count, const std::string& text) {
    std::string list;
    for (int entry = 0; entry < count; ++entry) list += (entry == 0 ? "" : ",") + text;
    return list;
}

// "name1","name2", up to `count`.
inline std::string NameList(int count) {
    std::string list;
    for (int entry = 1; entry <= count; ++entry)
        list += (entry == 1 ? "\"name" : ",\"name") + std::to_string(entry) + '"';
    return list;
}

}  // namespace orvelle::mqtt
