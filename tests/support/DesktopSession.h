#pragma once

#include "support/InputDriver.h"
#include "support/OtherClient.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"
#include "support/VirtualDisplay.h"
#include "support/WindowManager.h"
#include "support/WindowProbe.h"

#include <memory>

namespace lanternix {

/// A whole desktop for one program: display, window manager, bus, home directory, and the means to
/// act on it and to look at it.
class DesktopSession {
 public:
  enum class WithManager { no, yes };
  enum class WithBus { no, yes };

  explicit DesktopSession(WithManager withManager = WithManager::yes,
                          WithBus withBus = WithBus::yes, QSize screenSize = {1280, 900},
                          VirtualDisplay::Outputs outputs = VirtualDisplay::Outputs::one);

  ProgramEnvironment &home() { return m_home; }
  const ProgramEnvironment &home() const { return m_home; }
  InputDriver &input() { return m_input; }
  WindowProbe &windows() { return m_windows; }
  const VirtualDisplay &display() const { return m_display; }
  const QString &displayName() const { return m_display.name(); }
  QSize screenSize() const { return m_display.size(); }
  /// Null in a session without one.
  SessionBus *bus() { return m_bus.get(); }

  /// Null in a session without one.
  const WindowManager *windowManager() const { return m_windowManager.get(); }

  /// The home's variables with this display and this bus.
  QProcessEnvironment variables() const;

  /// Shows a window of another program, which then has the keyboard.
  std::unique_ptr<OtherClient> openOtherWindow(
      QRect geometry = {60, 60, 400, 300}, OtherClient::Shape shape = OtherClient::Shape::normal);

 private:
  ProgramEnvironment m_home;
  VirtualDisplay m_display;
  std::unique_ptr<WindowManager> m_windowManager;
  std::unique_ptr<SessionBus> m_bus;
  InputDriver m_input;
  WindowProbe m_windows;
};

}  // namespace lanternix
