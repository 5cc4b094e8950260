// X-Plane started anew, at the same port or another one, its process known or not: it forgets what was asked, and the
// state must be right again within six seconds. An unknown process that flew for less than it takes to be found again
// can't be told from one that paused, so each flies for longer. ORVELLE_RESTARTS says how often, five times of each
// kind by default.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <ostream>

#include "tests/simulators/XPlaneRig.h"

namespace orvelle::simulators {
namespace {

constexpr Long Within = 6000;  // milliseconds

enum class Process { Known, Unknown };
struct Kind {
    Process Whose;
    XPlanePort Where;
    Long Away;  // milliseconds between end and start
};

// As tests are named by it.
void PrintTo(const Kind& kind, std::ostream* out) {
    *out << (kind.Whose == Process::Known ? "known" : "unknown") << " process, away for " << kind.Away << " ms";
}

class XPlaneRestartTest : public testing::TestWithParam<Kind> {};

TEST_P(XPlaneRestartTest, TheStateIsRightWithinSixSeconds) {
    const char* const wanted = std::getenv("ORVELLE_RESTARTS");
    const int restarts = wanted == nullptr ? 5 : std::atoi(wanted);
    XPlaneRig rig;
    int process = GetParam().Whose == Process::Known ? 41 : 0;
    rig.Process = process;
    rig.Pass(2000);
    ASSERT_TRUE(rig.Tells(118305));
    Long longest = 0;
    for (int restart = 1; restart <= restarts; ++restart) {
        rig.Pass(2500 + restart * 37 % 1000);
        const int run = rig.Source.Run();
        rig.Kill();
        rig.Pass(GetParam().Away + restart * 61 % 1000);
        const int kilohertz = 118000 + restart * 25 % 18000;
        rig.Server.Values[Com1] = static_cast<float>(kilohertz);
        if (process != 0) rig.Process = ++process;
        rig.Server.Start(GetParam().Where);
        const Long took = rig.PassUntil([&] { return rig.Tells(kilohertz) && rig.Source.Run() == run + 1; });
        ASSERT_GE(took, 0) << "restart " << restart;
        EXPECT_LE(took, Within) << "restart " << restart;
        longest = std::max(longest, took);
    }
    std::cout << restarts << " restarts, the longest took " << longest << " ms of the clock\n";
}

INSTANTIATE_TEST_SUITE_P(AtTheSamePort, XPlaneRestartTest,
                         testing::Values(Kind{Process::Known, XPlanePort::Same, 100},
                                         Kind{Process::Known, XPlanePort::Same, 30'000},
                                         Kind{Process::Unknown, XPlanePort::Same, 100},
                                         Kind{Process::Unknown, XPlanePort::Same, 4000},
                                         Kind{Process::Unknown, XPlanePort::Same, 30'000}));
INSTANTIATE_TEST_SUITE_P(AtAnotherPort, XPlaneRestartTest,
                         testing::Values(Kind{Process::Known, XPlanePort::Another, 100},
                                         Kind{Process::Known, XPlanePort::Another, 30'000},
                                         Kind{Process::Unknown, XPlanePort::Another, 100},
                                         Kind{Process::Unknown, XPlanePort::Another, 4000},
                                         Kind{Process::Unknown, XPlanePort::Another, 30'000}));

TEST(XPlaneRestart, NothingOfTheRunBeforeIsKept) {
    XPlaneRig rig;
    rig.Process = 41;
    rig.Pass(2000);
    rig.Kill();
    rig.Server.Values.erase(Com1);
    rig.Process = 42;
    rig.Server.Start();
    rig.Pass(10'000);
    ASSERT_TRUE(rig.Source.State());
    EXPECT_EQ(rig.Source.State()->Radios[0].Kilohertz, 0);
    EXPECT_EQ(rig.Source.State()->Radios[1].Kilohertz, 121500);
}

}  // namespace
}  // namespace orvelle::simulators
