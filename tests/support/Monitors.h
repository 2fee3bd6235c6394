#pragma once

#include <QtCore/QRect>
#include <QtCore/QStringList>

namespace lanternix {

class VirtualDisplay;

/// Divides a display into monitors, and plugs them in and out. Programs are told by the server as
/// they are of real ones.
class Monitors {
 public:
  explicit Monitors(const VirtualDisplay &display) : m_display(display) {}

  /// Puts a monitor at \p area of the display, in its pixels. The first one takes the place of the
  /// monitor that the display comes with, and is the primary one.
  void plugIn(const QString &name, const QRect &area);
  /// Takes one away that is not the first.
  void unplug(const QString &name);

 private:
  void announce();
  void xrandr(const QStringList &arguments);

  const VirtualDisplay &m_display;
  bool m_hasFirst = false;
};

}  // namespace lanternix
