#pragma once

#include <QtCore/QtGlobal>

#include <csignal>

namespace lanternix {

/// Stops a process as long as this object lives: it neither answers nor ends, as one that waits for
/// a disk that has gone.
class SuspendedProcess {
 public:
  explicit SuspendedProcess(qint64 processId) : m_processId(static_cast<pid_t>(processId)) {
    ::kill(m_processId, SIGSTOP);
  }
  ~SuspendedProcess() { ::kill(m_processId, SIGCONT); }
  Q_DISABLE_COPY_MOVE(SuspendedProcess)

 private:
  pid_t m_processId;
};

}  // namespace lanternix
