#pragma once

#include "Platform/Linux/X11SelectionWatch.h"
#include "Platform/Linux/X11Server.h"
#include "Platform/WindowSystem.h"

#include <QtCore/QObject>

#include <array>
#include <optional>
#include <span>

namespace lanternix {

/// The program that blends windows with what is below them, if one runs. All lengths are the
/// server's own pixels.
class X11Compositor : public QObject {
  Q_OBJECT

 public:
  explicit X11Compositor(const X11Server &server);

  bool isRunning() const { return m_selection.isOwned(); }

  /// Marks what of \p window is the window proper: only that takes presses, is placed and tiled,
  /// and has what is behind it blurred. Without a shadow its corners are cut. Lengths in \p frame
  /// are the server's pixels too.
  void setFrame(xcb_window_t window, const WindowSystem::Frame &frame);

 Q_SIGNALS:
  /// A compositor has started, or the last one has ended.
  void changed();

 private:
  enum Name : std::size_t { frameExtents, blurBehind, nameCount };

  void setShape(xcb_window_t window, const WindowSystem::Frame &frame);
  void setNumbers(xcb_window_t window, xcb_atom_t property, std::span<const quint32> numbers);

  const X11Server &m_server;
  X11SelectionWatch m_selection;
  std::array<xcb_atom_t, nameCount> m_atoms{};
  /// What was said last: window managers take every repetition for news and shape their frames
  /// anew.
  std::optional<std::pair<xcb_window_t, WindowSystem::Frame>> m_said;
};

}  // namespace lanternix
