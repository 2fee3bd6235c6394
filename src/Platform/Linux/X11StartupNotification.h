#pragma once

#include "Platform/Linux/X11Atoms.h"

#include <QtCore/QString>

namespace lanternix {

/// The sign by which a desktop shows that it waits for what the user has asked for, such as a busy
/// pointer. Whoever answers says so to every program on the display.
class X11StartupNotification {
 public:
  X11StartupNotification(const X11Server &server, X11Atoms &atoms)
      : m_server(server), m_atoms(atoms) {}

  /// The server's time of the user's action, which an id ends with; 0 when it tells none.
  static quint32 timeOf(const QString &id);

  /// The program is about to answer what goes by \p id, which may be empty: nobody waits then. An
  /// earlier one is answered by this.
  void begin(const QString &id);
  /// The answer is there. Nobody waits: nothing.
  void end();

 private:
  void broadcast(const QByteArray &message);

  const X11Server &m_server;
  X11Atoms &m_atoms;
  QString m_id;
};

}  // namespace lanternix
