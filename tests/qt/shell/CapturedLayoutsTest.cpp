// A capture tells every key by its place, whatever layout the keyboard has.
#include <QProcess>

#include "adapters/shared/ScanCodes.h"
#include "tests/qt/shell/CaptureRig.h"

namespace orvelle::qt {
namespace {

constexpr int LeftAlt = 56;
constexpr int RightAlt = 100;
constexpr int CapsLock = 58;
constexpr int NumLock = 69;
constexpr int PrintScreen = 99;  // is the window manager's

void SetLayout(const char* layout) {
    QProcess process;
    process.start("setxkbmap", {"-layout", layout});
    EXPECT_TRUE(ComesTrue([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitCode(), 0);
}

class CapturedLayouts : public testing::TestWithParam<const char*>, protected CaptureRig {
protected:
    CapturedLayouts() {
        SetLayout(GetParam());
        Show();
        windows.SetCapture(box);
    }
    ~CapturedLayouts() override {
        windows.ReleaseCapture();
        SetLayout("us");
    }

    // What the keys that were struck are captured as.
    std::vector<Long> Captured() {
        Stroke(KeyEsc);
        std::vector<Long> codes = CodesUpTo(KeyEsc);
        if (!codes.empty()) codes.pop_back();
        return codes;
    }
};

TEST_P(CapturedLayouts, TellEveryKeyByItsPlace) {
    for (int key = 2; key < 248; ++key) {
        const Long code = ScanCodeOfLinuxKey(key);
        if (code == 0 || key == LeftAlt || key == RightAlt || key == PrintScreen) continue;
        Stroke(key);
        EXPECT_EQ(Captured(), std::vector<Long>{code}) << "key " << key;
        if (key != CapsLock && key != NumLock) continue;
        Stroke(key);
        Captured();
    }
}

// A key that is Alt belongs to the system; one that chooses a level of the layout is a key like others.
TEST_P(CapturedLayouts, TakeTheRightAltWhereItChoosesALevel) {
    const bool isAlt = std::string(GetParam()) == "us";
    Stroke(RightAlt);
    EXPECT_EQ(Captured(), isAlt ? std::vector<Long>() : std::vector<Long>{312});
    // Together with another key, which types something else then.
    input.KeyDown(RightAlt);
    Stroke(16);
    input.KeyUp(RightAlt);
    EXPECT_EQ(Captured(), isAlt ? std::vector<Long>() : (std::vector<Long>{312, 16}));
}

TEST_P(CapturedLayouts, LeaveTheLeftAltToTheSystem) {
    Stroke(LeftAlt);
    EXPECT_EQ(Captured(), std::vector<Long>());
}

INSTANTIATE_TEST_SUITE_P(Of, CapturedLayouts, testing::Values("us", "de", "fr", "de(neo)"), [](const auto& layout) {
    const std::string name = layout.param;
    return name == "de(neo)" ? "neo" : name;
});

}  // namespace
}  // namespace orvelle::qt
