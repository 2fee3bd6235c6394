#pragma once

#include "Platform/ProcessLauncher.h"

#include <QtCore/QObject>

namespace lanternix {

/// Starts child processes by `posix_spawn`, each in a session of its own, so that neither an
/// interrupt typed at the terminal which the program was started from nor that terminal's end
/// reaches them.
///
/// Every child is watched through a process descriptor and reaped by the event loop the moment it
/// ends. That needs no signal handler, which would clash with those of libraries, and no second
/// process in between; it can reap no child but our own. Children that are still running when the
/// launcher goes are left to run.
class SpawnProcessLauncher : public ProcessLauncher {
 public:
  bool launch(const QString &launchPath, const QStringList &arguments) override;

 private:
  QObject m_watches;  // owns one notifier for each running child
};

}  // namespace lanternix
