#pragma once

#include "Platform/Linux/X11Server.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>
#include <QtCore/QSize>

#include <array>

namespace lanternix {

/// The program that blends windows with what is below them, if one runs. All lengths are the
/// server's own pixels.
class X11Compositor : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  explicit X11Compositor(const X11Server &server);
  ~X11Compositor() override;

  bool isRunning() const { return m_isRunning; }

  /// The widths of a window's shadow: left, right, top, bottom.
  using Extents = std::array<quint32, 4>;

  /// Marks the rectangle of \p size within the \p shadow of \p window as the window proper: only it
  /// takes presses, is placed and tiled, and has what is behind it blurred, its corners rounded by
  /// \p cornerRadius.
  void setFrame(xcb_window_t window, const Extents &shadow, QSize size, int cornerRadius);

  bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

 Q_SIGNALS:
  /// A compositor has started, or the last one has ended.
  void changed();

 private:
  enum Name : std::size_t { selection, frameExtents, blurBehind, nameCount };

  void watch();
  void update(bool isRunning);

  const X11Server &m_server;
  std::array<xcb_atom_t, nameCount> m_atoms{};
  quint8 m_firstEvent = 0;
  bool m_isRunning = false;
};

}  // namespace lanternix
