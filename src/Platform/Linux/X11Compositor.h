#pragma once

#include "Platform/Linux/X11Atoms.h"
#include "Platform/Linux/X11SelectionWatch.h"
#include "Platform/Linux/X11Server.h"
#include "Platform/WindowSystem.h"

#include <QtCore/QObject>

#include <optional>
#include <span>

namespace lanternix {

/// The program that blends windows with what is below them, if one runs. All lengths are the
/// server's own pixels.
class X11Compositor : public QObject {
  Q_OBJECT

 public:
  /// Keeps the references.
  X11Compositor(const X11Server &server, X11Atoms &atoms);

  bool isRunning() const { return m_selection.isOwned(); }

  /// Marks what of \p window is the window proper: only that takes presses, is placed and tiled,
  /// and has what is behind it blurred. Without a shadow its corners are cut. Lengths in \p frame
  /// are the server's pixels too.
  void setFrame(xcb_window_t window, const WindowSystem::Frame &frame);

 Q_SIGNALS:
  /// A compositor has started, or the last one has ended.
  void changed();

 private:
  void setShape(xcb_window_t window, const WindowSystem::Frame &frame);
  void setNumbers(xcb_window_t window, xcb_atom_t property, std::span<const quint32> numbers);

  const X11Server &m_server;
  X11Atoms &m_atoms;
  X11SelectionWatch m_selection;
  /// What was said last: window managers take every repetition for news and shape their frames
  /// anew.
  std::optional<std::pair<xcb_window_t, WindowSystem::Frame>> m_said;
};

}  // namespace lanternix
