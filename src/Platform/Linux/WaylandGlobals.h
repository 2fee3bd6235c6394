#pragma once

struct wl_display;
struct wl_event_queue;
struct wl_interface;
struct wl_proxy;

namespace lanternix {

/// Deletes what the Wayland library has made.
struct WaylandRelease {
  void operator()(wl_proxy *proxy) const;
  void operator()(wl_event_queue *queue) const;
};

/// Binds the first version of a global object of the compositor at \p display. What comes of the
/// object is heard through \p queue. Null when the compositor has no such object.
wl_proxy *bindWaylandGlobal(wl_display *display, wl_event_queue *queue,
                            const wl_interface &interface);

}  // namespace lanternix
