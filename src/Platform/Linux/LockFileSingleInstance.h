#pragma once

#include "Platform/SingleInstance.h"

namespace lanternix {

/// One program per user where there is no bus. A named pipe, "lanternix.lock" in the runtime
/// directory, serves twice: whoever holds the lock on it is the one program, and whoever does not
/// get the lock rings by writing to it. The system gives the lock up when its holder ends, however
/// it ends.
class LockFileSingleInstance : public SingleInstance {
  Q_OBJECT

 public:
  using SingleInstance::SingleInstance;
  ~LockFileSingleInstance() override;

  bool claim() override;

 private:
  void listen();
  void answer();

  int m_descriptor = -1;
};

}  // namespace lanternix
