#pragma once

#include "Platform/SingleInstance.h"

#include <QtCore/QByteArray>

namespace lanternix {

/// One program per user where there is no bus. A named pipe, "lanternix.lock" in the runtime
/// directory, serves twice: whoever holds the lock on it is the one program, and whoever does not
/// get the lock rings by writing a line to it, which carries his token. The system gives the lock
/// up when its holder ends, however it ends; a holder that ends well takes the pipe away too.
class LockFileSingleInstance : public SingleInstance {
  Q_OBJECT

 public:
  using SingleInstance::SingleInstance;
  ~LockFileSingleInstance() override;

  bool claim(const ActivationToken &token) override;

 private:
  /// Opens the pipe and locks it. False when another program has the lock; the pipe is open then.
  bool lock();
  void ring(const ActivationToken &token);
  void listen();
  void answer();

  QByteArray m_path;
  int m_descriptor = -1;
  bool m_isLocked = false;
};

}  // namespace lanternix
