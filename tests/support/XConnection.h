#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace lanternix {

struct FreeDeleter {
  void operator()(void *memory) const noexcept { std::free(memory); }
};

/// A reply or event of the X server, freed with its owner.
template <typename Type>
using XReply = std::unique_ptr<Type, FreeDeleter>;

/// One connection to an X server, closed with this object.
class XConnection {
 public:
  /// Throws when the display does not answer.
  explicit XConnection(const QString &displayName);

  operator xcb_connection_t *() const { return m_connection.get(); }
  xcb_connection_t *get() const { return m_connection.get(); }
  const xcb_screen_t &screen() const { return *m_screen; }
  xcb_window_t root() const { return m_screen->root; }

  xcb_atom_t atom(const char *name) const;
  QString atomName(xcb_atom_t atom) const;

  /// The bytes of a window property of any type; empty when there is none. Items of 32 bits come
  /// as four bytes each.
  QByteArray property(xcb_window_t window, const char *name) const;
  /// The first 32-bit item of a property, or \p fallback.
  quint32 number(xcb_window_t window, const char *name, quint32 fallback = 0) const;

  /// The server's time now, which it puts on a change of a property. Events that came before are
  /// lost. 0 when the connection breaks.
  quint32 time() const;

  /// Returns once the server has carried out everything that was asked of it.
  void sync() const;

 private:
  struct Disconnector {
    void operator()(xcb_connection_t *connection) const noexcept { xcb_disconnect(connection); }
  };

  std::unique_ptr<xcb_connection_t, Disconnector> m_connection;
  const xcb_screen_t *m_screen = nullptr;
  mutable QHash<QByteArray, xcb_atom_t> m_atoms;
};

}  // namespace lanternix
