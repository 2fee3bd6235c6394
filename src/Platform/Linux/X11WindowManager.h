#pragma once

#include "Platform/Linux/X11Atoms.h"

#include <array>
#include <optional>

namespace lanternix {

/// The window manager of the session as its clients meet it: what it tells of windows, and what it
/// can be asked for by the Extended Window Manager Hints. Each question is one to the server.
class X11WindowManager {
 public:
  /// How a window manager keeps a window.
  enum class State : quint32 {
    withdrawn = 0,  ///< not at all: it is hidden, or not its own
    normal = 1,
    iconic = 3,
  };

  /// Both outlive this object.
  X11WindowManager(const X11Server &server, X11Atoms &atoms) : m_server(server), m_atoms(atoms) {}

  /// Whether there is one. What a dead one has left behind does not count.
  bool isRunning() const;
  /// What it makes of \p window.
  State stateOf(xcb_window_t window) const;
  bool isManaging(xcb_window_t window) const { return stateOf(window) != State::withdrawn; }

  /// The window that \p property of \p window names; none when it names none, or \p window is gone.
  std::optional<xcb_window_t> windowProperty(xcb_window_t window, X11Atoms::Name property) const;

  /// Sends the request \p type about \p window; what \p data says depends on the type. Whether it
  /// is granted shows itself later, if at all.
  void send(xcb_window_t window, X11Atoms::Name type, const std::array<quint32, 5> &data) const;

 private:
  const X11Server &m_server;
  X11Atoms &m_atoms;
};

}  // namespace lanternix
