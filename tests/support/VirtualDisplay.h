#pragma once

#include "support/ChildProcess.h"

#include <QtCore/QSize>
#include <QtCore/QString>

namespace lanternix {

/// An X server of its own that draws into memory (Xvfb), on a display number that was free.
class VirtualDisplay {
 public:
  /// Starts the server and returns once it answers.
  explicit VirtualDisplay(QSize size = {1280, 900});

  /// As DISPLAY names it.
  const QString &name() const { return m_name; }
  QSize size() const { return m_size; }

 private:
  QSize m_size;
  ChildProcess m_server;
  QString m_name;
};

}  // namespace lanternix
