#pragma once

#include <QtCore/QSize>

#include <functional>
#include <memory>
#include <optional>

struct wl_compositor;
struct wl_display;
struct wl_event_queue;
struct wl_proxy;

namespace lanternix {

/// A compositor's layer shell, asked for what a window of the shell cannot tell before it is shown.
/// The questions pass beside those of Qt, on its connection.
class WaylandLayerShell {
 public:
  /// The shell of the compositor that Qt is connected to. Null where there is none.
  static std::unique_ptr<WaylandLayerShell> find();
  ~WaylandLayerShell();
  Q_DISABLE_COPY_MOVE(WaylandLayerShell)

  /// What the desktop's bars leave of the output on which the compositor would put a window that
  /// names none: the one the user works on. In logical pixels. None when it does not say in time.
  std::optional<QSize> usableSize() const;

  /// Calls \p action once the compositor has dealt with everything sent to it so far, and before
  /// the program hears of anything that happened later. Never, when the connection ends first.
  void afterAllSent(std::function<void()> action) const;

 private:
  struct Release {
    void operator()(wl_proxy *proxy) const;
    void operator()(wl_event_queue *queue) const;
  };

  WaylandLayerShell(wl_display *display, wl_compositor *compositor);
  void bindShell();

  wl_display *m_display;
  std::unique_ptr<wl_event_queue, Release> m_queue;
  /// Qt's compositor, whose new objects are heard of through our queue.
  std::unique_ptr<wl_proxy, void (*)(wl_proxy *)> m_compositor;
  std::unique_ptr<wl_proxy, Release> m_shell;
};

}  // namespace lanternix
