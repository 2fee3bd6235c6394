#pragma once

#include "Platform/Linux/WaylandGlobals.h"

#include <QtCore/QPointF>

#include <memory>

namespace lanternix {

/// How far the mouse travels while a window follows it. Compositors tell of the mouse by its place
/// in the window; while they move that very window, some mean where it is and some where it was
/// when the button was pressed.
class WaylandPointerTravel {
 public:
  WaylandPointerTravel();
  ~WaylandPointerTravel();
  Q_DISABLE_COPY_MOVE(WaylandPointerTravel)

  /// Counts from here. False where the compositor does not tell; nothing is counted then.
  bool start();
  /// Ends it. Without a start: nothing.
  void stop();
  /// Since the last start, in logical pixels.
  QPointF travelled() const { return m_travelled; }

 private:
  std::unique_ptr<wl_proxy, WaylandRelease> m_manager;
  /// Tells of every motion, so it is there only while the mouse is followed.
  wl_proxy *m_motions = nullptr;
  QPointF m_travelled;
};

}  // namespace lanternix
