#pragma once

#include <QtCore/QStringList>

namespace lanternix {

/// Starts child processes that live on by themselves.
class ProcessLauncher {
 public:
  virtual ~ProcessLauncher() = default;

  /// Starts the executable at \p launchPath with \p arguments (argument zero is the path itself).
  /// The child inherits environment, working directory and the three standard streams and nothing
  /// else: no descriptor, signal mask or signal disposition of ours. It leaves no zombie and
  /// outlives the program. False when it cannot be started.
  virtual bool launch(const QString &launchPath, const QStringList &arguments) = 0;
};

}  // namespace lanternix
