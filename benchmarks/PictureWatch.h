#pragma once

#include "support/XConnection.h"

#include <QtCore/QRect>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>
#include <xcb/damage.h>

namespace lanternix {

/// Times what becomes of one window on the screen after an event.
///
/// Every drawing into the window is noted when the server tells of it, together with a copy of the
/// drawn area that stays in the server. Only when all is quiet are the copies fetched and compared,
/// so that looking does not slow down what is looked at.
class PictureWatch {
 public:
  using Clock = std::chrono::steady_clock;
  using Duration = std::chrono::duration<double, std::milli>;

  struct Times {
    /// From the event to the first drawing after which the window has content.
    std::optional<Duration> firstPicture;
    /// From the event to the last drawing that changed a pixel.
    std::optional<Duration> settled;
    /// From the event to each frame: drawings that follow one another within 4 ms count as one.
    std::vector<Duration> frames;

    /// The longest time between one frame and the next, of those that came \p within that time of
    /// the event; none with fewer than two.
    std::optional<Duration> longestGap(Duration within) const;
  };

  PictureWatch(const QString &displayName, xcb_window_t window);
  ~PictureWatch();
  Q_DISABLE_COPY_MOVE(PictureWatch)

  /// Carries out \p event and follows the drawing until nothing is drawn for 150 ms.
  Times timesAfter(const std::function<void()> &event);

  /// Carries out \p event and returns how long it takes until the window is unmapped; none when it
  /// never is.
  std::optional<Duration> timeToUnmapped(const std::function<void()> &event);

  /// Returns once nothing has been drawn for 150 ms.
  void waitForQuiet();

 private:
  struct Drawing {
    Clock::time_point time;
    QRect area;
    xcb_pixmap_t copy;
  };

  XReply<xcb_generic_event_t> nextEvent(std::chrono::milliseconds timeout);
  std::vector<Drawing> drawingsUntilQuiet();
  Drawing copyOf(const xcb_damage_notify_event_t &damage, Clock::time_point time);
  std::vector<quint32> fetch(const Drawing &drawing);

  XConnection m_connection;
  xcb_window_t m_window;
  quint8 m_damageEvent;
  quint8 m_depth = 0;  // bits of a pixel
  xcb_damage_damage_t m_damage;
  xcb_gcontext_t m_context;
  QSize m_size;
  std::vector<quint32> m_picture;
};

}  // namespace lanternix
