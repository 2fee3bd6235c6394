#pragma once

#include "support/XConnection.h"

#include <QtCore/QRect>

#include <optional>

namespace lanternix {

/// A tray of the older kind: a window that takes the icon windows of programs in. It is there as
/// long as this object lives.
class EmbeddingTray {
 public:
  /// Shows the tray and tells every program of it.
  explicit EmbeddingTray(const QString &displayName);

  /// Whether a program's icon comes; the last one is shown.
  bool hasIcon();
  /// Where the icon is on the screen.
  QRect geometry() const;
  xcb_window_t window() const { return m_window; }

 private:
  void announce();
  void readEvents();
  void embed(xcb_window_t icon);
  void send(xcb_window_t to, const char *type, std::initializer_list<quint32> data,
            quint32 mask) const;

  XConnection m_connection;
  xcb_window_t m_window;
  std::optional<xcb_window_t> m_icon;
};

}  // namespace lanternix
