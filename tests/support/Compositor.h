#pragma once

#include "support/ChildProcess.h"
#include "support/XConnection.h"

namespace lanternix {

/// A program that blends the windows of a display with what is below them (picom), without any
/// shadows or fading of its own. It runs as long as this object lives.
class Compositor {
 public:
  /// Starts it and returns once every program can see that it runs.
  explicit Compositor(const QString &displayName);

  /// Ends it and returns once every program can see that.
  void stop();

 private:
  bool isAnnounced() const;

  XConnection m_connection;
  ChildProcess m_process;
};

}  // namespace lanternix
