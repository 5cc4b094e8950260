// A transcript and answers for the peer under test.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "replay/Answers.h"
#include "replay/Transcript.h"

namespace orvelle::replay {

class PeerTest : public testing::Test {
protected:
    // What was printed since the last look.
    std::string Printed() {
        std::string printed = out.str();
        out.str("");
        return printed;
    }

    std::ostringstream out;
    Transcript transcript{out};
    Answers answers;
};

}  // namespace orvelle::replay
