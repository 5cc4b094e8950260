// A window system whose every call a test expects.
#pragma once

#include <gmock/gmock.h>

#include "platform/Windows.h"

namespace orvelle {

class MockWindows : public Windows {
public:
    MOCK_METHOD(void, SetCapture, (Control&), (override));
    MOCK_METHOD(void, ReleaseCapture, (), (override));
    MOCK_METHOD(void, SetWindowPos, (Control&, Long, Long, Long, Long, Long, Long), (override));
    MOCK_METHOD(Rectangle, GetWindowRect, (Control&), (override));
    MOCK_METHOD(Rectangle, GetClientRect, (Control&), (override));
    MOCK_METHOD(std::intptr_t, SetWindowLongA, (Control&, Long, std::intptr_t), (override));
    MOCK_METHOD(std::intptr_t, GetWindowLongA, (Control&, Long), (override));
    MOCK_METHOD(Long, CallWindowProcA, (std::intptr_t, Control&, Long, Long, Long), (override));
    MOCK_METHOD(void, DrawEdge, (Control&, Long, Long), (override));
};

}  // namespace orvelle
