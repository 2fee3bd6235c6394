#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace lanternix {

class VirtualDisplay;

/// Plugs monitors into the outputs of a display that has several, and pulls them out. Programs are
/// told by the server as they are of real ones.
class Monitors {
 public:
  explicit Monitors(const VirtualDisplay &display) : m_display(display) {}

  /// As programs know the monitor on an output, counted from 0.
  static QString name(int output);

  /// Shows \p area of the display, in its pixels, on a monitor that is plugged into \p output. That
  /// of the first output, which is always in use, is the primary one.
  void plugIn(int output, const QRect &area);
  /// Takes one away that is not the first. The display keeps its size.
  void unplug(int output);

 private:
  void xrandr(const QStringList &arguments);

  const VirtualDisplay &m_display;
  /// That the server has been told of.
  QStringList m_modes;
};

}  // namespace lanternix
