#pragma once

#include "support/ChildProcess.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace lanternix {

/// An X server of its own that draws into memory, on a display number that was free.
class VirtualDisplay {
 public:
  /// What monitors can be plugged into: one that is always in use, with a server that starts in no
  /// time (Xvfb), or several, with the server that real desktops run on (Xorg and its dummy
  /// driver).
  enum class Outputs { one, several };

  /// Starts the server and returns once it answers. With several outputs the first one is in use,
  /// at some size that fits into \p size.
  explicit VirtualDisplay(QSize size = {1280, 900}, Outputs outputs = Outputs::one);

  /// As DISPLAY names it.
  const QString &name() const { return m_name; }
  QSize size() const { return m_size; }

 private:
  QStringList prepareSeveralOutputs();

  QSize m_size;
  /// Where a server finds what it is told, and writes what it has to say.
  QTemporaryDir m_directory;
  ChildProcess m_server;
  QString m_name;
};

}  // namespace lanternix
