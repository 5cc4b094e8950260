// What a user does to a window by its frame or the taskbar, as requests to the window manager.
#pragma once

#include <QRect>
#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <string>

namespace orvelle::qt {

class WindowManager {
public:
    // Logical pixels; the place of the frame and the size within it.
    void Move(const QWidget& window, QPoint place);
    void Resize(const QWidget& window, QSize size);
    void Minimise(const QWidget& window);
    void Activate(const QWidget& window);
    enum class Maximised { No, Yes };
    void Maximise(const QWidget& window, Maximised maximised);
    void Close(const QWidget& window);
    bool IsOnScreen(const QWidget& window);
    // Where the frame really is on the screen, and how large.
    QRect Frame(const QWidget& window);

private:
    void Ask(const QWidget& window, const std::string& message, std::initializer_list<std::uint32_t> data);
};

}  // namespace orvelle::qt
