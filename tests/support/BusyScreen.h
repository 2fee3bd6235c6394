#pragma once

#include "support/XConnection.h"

#include <thread>

namespace lanternix {

/// Draws into a window and changes its title without a pause, as a terminal does whose program
/// prints as fast as it can, as long as this object lives.
class BusyScreen {
 public:
  BusyScreen(const QString &displayName, xcb_window_t window);

 private:
  void draw(const std::stop_token &stop);

  XConnection m_connection;
  xcb_window_t m_window;
  std::jthread m_hand;  // the last to come and the first to go
};

}  // namespace lanternix
