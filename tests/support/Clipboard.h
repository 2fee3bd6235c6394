#pragma once

#include "support/XConnection.h"

#include <optional>

namespace lanternix {

/// The clipboard as another program pastes from it.
class Clipboard {
 public:
  explicit Clipboard(const QString &displayName);

  /// The text that its owner hands over now; none when nobody owns it or the owner has no text.
  std::optional<QString> text();

 private:
  XConnection m_connection;
  xcb_window_t m_window;
};

}  // namespace lanternix
