#pragma once

#include "Platform/Linux/WaylandGlobals.h"

#include <QtCore/QSize>

#include <memory>
#include <optional>

class QDeadlineTimer;
struct wl_compositor;

namespace lanternix {

/// A compositor's layer shell, asked for what a window of the shell cannot tell before it is shown.
/// The questions pass beside those of Qt, on its connection.
class WaylandLayerShell {
 public:
  /// The shell of the compositor that Qt is connected to. Null where there is none.
  static std::unique_ptr<WaylandLayerShell> find();

  /// What the desktop's bars leave of the output on which the compositor would put a window that
  /// names none: the one the user works on. In logical pixels. None when it does not say in time.
  std::optional<QSize> usableSize() const;

 private:
  WaylandLayerShell(wl_display *display, wl_compositor *compositor);

  bool hear(const QDeadlineTimer &deadline) const;

  wl_display *m_display;
  std::unique_ptr<wl_event_queue, WaylandRelease> m_queue;
  /// Qt's compositor, whose new objects are heard of through our queue.
  std::unique_ptr<wl_proxy, void (*)(wl_proxy *)> m_compositor;
  std::unique_ptr<wl_proxy, WaylandRelease> m_shell;
};

}  // namespace lanternix
