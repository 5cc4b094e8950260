#include "apps/three/ScreenOf.h"

#include <xcb/xcb.h>

#include <memory>

#include "adapters/x11/XReply.h"

namespace orvelle {

QImage ScreenOf(const std::string& display) {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server(xcb_connect(display.c_str(), nullptr),
                                                                              &xcb_disconnect);
    if (xcb_connection_has_error(server.get())) return {};
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(server.get())).data;
    const auto question = xcb_get_image(server.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, 0, 0,
                                        screen.width_in_pixels, screen.height_in_pixels, ~0U);
    const auto pixels = OwnReply(xcb_get_image_reply(server.get(), question, nullptr));
    const qsizetype bytesPerLine = qsizetype{screen.width_in_pixels} * 4;
    if (!pixels || xcb_get_image_data_length(pixels.get()) != bytesPerLine * screen.height_in_pixels) return {};
    return QImage(xcb_get_image_data(pixels.get()), screen.width_in_pixels, screen.height_in_pixels, bytesPerLine,
                  QImage::Format_RGB32)
        .copy();
}

}  // namespace orvelle
