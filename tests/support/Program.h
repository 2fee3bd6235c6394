#pragma once

#include "support/ChildProcess.h"
#include "support/XConnection.h"

#include <optional>

namespace lanternix {

class DesktopSession;

/// The built program, running in a session.
class Program {
 public:
  enum class Disk { writable, full };

  /// Where the built program is.
  static QString file();

  /// Starts it; no window need be there yet.
  explicit Program(DesktopSession &session, Disk disk = Disk::writable,
                   const QStringList &arguments = {});

  /// Returns once the panel is on the screen and has the keyboard.
  void waitForPanel();
  /// Whether the panel is on the screen.
  bool isPanelShown() const;
  /// The panel's window; throws before there is one.
  xcb_window_t panel() const;

  /// Returns once the program and the window manager have dealt with everything that happened on
  /// the display until now.
  void settle() const;

  bool isRunning() const { return m_process.isRunning(); }
  qint64 processId() const { return m_process.processId(); }
  /// None while it runs, -1 when it crashed.
  std::optional<int> exitCode() const { return m_process.exitCode(); }
  /// Ends it as the end of a session would.
  void terminate() { m_process.stop(); }
  /// Ends it as a crash would.
  void kill() { m_process.kill(); }

  const QByteArray &output() { return m_process.output(); }
  const QByteArray &errors() { return m_process.errors(); }

 private:
  std::optional<xcb_window_t> findPanel() const;

  DesktopSession &m_session;
  ChildProcess m_process;
  mutable std::optional<xcb_window_t> m_panel;
};

}  // namespace lanternix
