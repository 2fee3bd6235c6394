#include "support/WindowShape.h"

#include <xcb/shape.h>

namespace lanternix::WindowShape {

namespace {

QRegion region(const XConnection &connection, xcb_window_t window, xcb_shape_sk_t kind) {
  const XReply<xcb_shape_get_rectangles_reply_t> reply(xcb_shape_get_rectangles_reply(
      connection, xcb_shape_get_rectangles(connection, window, kind), nullptr));
  QRegion region;
  if (!reply) {
    return region;
  }
  const xcb_rectangle_t *rectangles = xcb_shape_get_rectangles_rectangles(reply.get());
  for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply.get()); ++i) {
    const xcb_rectangle_t &part = rectangles[i];
    region += QRect(part.x, part.y, part.width, part.height);
  }
  return region;
}

}  // namespace

QRegion bounding(const XConnection &connection, xcb_window_t window) {
  return region(connection, window, XCB_SHAPE_SK_BOUNDING);
}

QRegion input(const XConnection &connection, xcb_window_t window) {
  return region(connection, window, XCB_SHAPE_SK_INPUT);
}

}  // namespace lanternix::WindowShape
