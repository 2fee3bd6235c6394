#pragma once

#include <QtCore/QtGlobal>

#include <sys/types.h>

namespace lanternix {

/// Stops a process as long as this object lives: it neither answers nor ends, as one that waits for
/// a disk that has gone.
class SuspendedProcess {
 public:
  /// Returns once the process stands still. Throws where that cannot be done.
  explicit SuspendedProcess(qint64 processId);
  ~SuspendedProcess();
  Q_DISABLE_COPY_MOVE(SuspendedProcess)

 private:
  pid_t m_processId;
};

}  // namespace lanternix
